#pragma once

#include <functional>
#include <optional>
#include <string>

#include "app/commands/AutoMemoReminder.h"
#include "app/commands/FindClient.h"
#include "app/commands/IssueAccount.h"
#include "clients/ArrivalForm.h"
#include "ports/FormVerdict.h"

namespace purrlodge {

class Session;

// The period of an admission register, as typed.
struct RegisterPeriod {
    std::string from; // "dd/mm/yy"
    std::string to;
};

// The questions of Tasks | Make Arrival Sheet and of the admission register.
class ArrivalQuestions : public FinderQuestions,
                         public MemoReminderQuestions,
                         public StayDateQuestions {
public:
    // The arrival form filled from `initial`. OK calls `onOk`, and the form
    // stays open while it answers StayOpen; its "Admission Register" button
    // calls `printRegister`. The closing verdict, nothing on Cancel.
    virtual std::optional<FormVerdict>
    fillArrivalForm(const ArrivalForm& initial, const RatesRecord& rates,
                    const OkRule<ArrivalForm>& onOk,
                    const std::function<void()>& printRegister) = 0;

    // The admission register's period, starting as `initial`; `onOk` is called
    // at each OK. The closing verdict, nothing on Cancel.
    virtual std::optional<FormVerdict> fillRegisterPeriod(const RegisterPeriod& initial,
                                                          const OkRule<RegisterPeriod>& onOk) = 0;
};

// The settings key of the sheets last chosen in the arrival form.
inline constexpr std::string_view arrivalSheetsKey = "ArrSheets";

// Tasks | Make Arrival Sheet (11857): the finder, the memo reminder, then the
// arrival form on the chosen client. OK checks the dates, saves the stay
// record whole (so Issue Account finds the dates and the cats), remembers the
// sheets chosen and prints them, the print dialog shown at most once.
void makeArrivalSheet(Session& session, ArrivalQuestions& questions);

// Print Jobs | Admission Register (and the arrival form's button): the
// period asked for (this month to start with), then the register of every
// stay that began in it, from the stay records and the account books.
void printAdmissionRegister(Session& session, ArrivalQuestions& questions);

} // namespace purrlodge
