#pragma once

#include <optional>
#include <string>
#include <string_view>

#include "clients/CatNameChange.h"
#include "clients/LeavingCat.h"

namespace purrlodge {

// Surname Alert! (DIALOG 5), asked when an edit changes the surname.
inline constexpr std::string_view surnameAlertTitle = "Surname Alert!";
inline constexpr std::string_view surnameAlertLine1 = "You have entered a change of Surname. ";
inline constexpr std::string_view surnameAlertLine2 = "Do you really want to change the Surname?";

// What a date-warning dialog shows: its caption, the warning code and two texts.
struct DateWarning {
    std::string title;
    int code = 0;
    std::string message;
    std::string detail;

    friend bool operator==(const DateWarning&, const DateWarning&) = default;
};

// The questions Full Client Information asks part-way through its OK. The Qt
// side answers them with dialogs; tests answer them from a script.
class ClientFormQuestions {
public:
    virtual ~ClientFormQuestions() = default;

    // Surname Alert! (DIALOG 5): true for YES, false for No.
    virtual bool confirmSurnameChange() = 0;

    // The improbable date-of-birth warning, with Continue and Cancel: true to
    // keep the year, false to abandon the OK.
    virtual bool continueDespiteBirthYear(const DateWarning& warning) = 0;

    // Apparent Date Error (DIALOG 16) in its vaccination mode, closed with Close.
    virtual void showDateWarning(const DateWarning& warning) = 0;

    // Change to Cats noted. (DIALOG 50) for a cat that is leaving: the reason
    // and notes on OK, nothing on Cancel.
    virtual std::optional<LeavingCatAnswer> askWhyCatLeft(const std::string& catName) = 0;

    // Cat Name Change (DIALOG 51), closed with Done.
    virtual CatNameChoice askCatNameChange(const std::string& oldName,
                                           const std::string& newName) = 0;
};

} // namespace purrlodge
