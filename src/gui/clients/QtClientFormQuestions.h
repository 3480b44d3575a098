#pragma once

#include <QPointer>
#include <QWidget>

#include "clients/ClientFormQuestions.h"

namespace purrlodge {

// The questions of Full Client Information asked with their dialogs, each
// modal over the window in front (the client form while it is open).
class QtClientFormQuestions : public ClientFormQuestions {
public:
    // fallbackParent: the owner of the dialogs when no modal window is open.
    explicit QtClientFormQuestions(QWidget* fallbackParent) : fallbackParent_(fallbackParent) {}

    bool confirmSurnameChange() override;
    bool continueDespiteBirthYear(const DateWarning& warning) override;
    void showDateWarning(const DateWarning& warning) override;
    std::optional<LeavingCatAnswer> askWhyCatLeft(const std::string& catName) override;
    CatNameChoice askCatNameChange(const std::string& oldName, const std::string& newName) override;

private:
    [[nodiscard]] QWidget* dialogParent() const;

    QPointer<QWidget> fallbackParent_;
};

} // namespace purrlodge
