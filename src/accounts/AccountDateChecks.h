#pragma once

#include <string>
#include <string_view>

#include "accounts/RatesRecord.h"
#include "store/Dates.h"

namespace purrlodge {

// The checks OK of Account Preparation (DIALOG 8) makes on the stay's dates
// before the account is computed and committed.

enum class AccountDatesVerdict {
    GoOn,              // compute and commit the account
    ApparentDateError, // show DIALOG 16 "Apparent Date Error"; the dialog stays open
    AskLongStay        // ask the Long Stay Query: "Right" goes on, "Wrong" stays open
};

struct AccountDatesCheck {
    AccountDatesVerdict verdict = AccountDatesVerdict::GoOn;
    int code = DateOk;     // the failed check's code (7 for a long stay)
    std::string message;   // DIALOG 16 static 101, or the Long Stay Query's question
    std::string dateLabel; // DIALOG 16 static 102: "Arrival/Start date" or "Departure/End date"
};

// In this order:
// 1. The arrival is checked; a code 1..6 is an Apparent Date Error.
// 2. The additional notes (edit 137, at most 120 characters) replace the
//    account note of the in-memory rates record, so this account's printouts
//    carry them; the saved NRATES.RTS is not touched.
// 3. The departure is checked against the arrival; a code 1..6 is an Apparent
//    Date Error. A stay of more than 21 days (code 7) asks the Long Stay
//    Query with its question ("More than 3 weeks?").
// The numbers of both dates are left in `state` as every date entry leaves them.
[[nodiscard]] AccountDatesCheck
checkAccountDates(std::string_view arrival, std::string_view departure, int currentYear,
                  DateEntryState& state, std::string_view additionalNotes, RatesRecord& rates);

// The dates of a stay as they are typed in (New Dates for Account, the
// arrival form): each shortened to "dd/mm/yy" when it has exactly two "/"
// (a four-digit year loses its century, as the count check does), else an
// Apparent Date Error "You seem to have entered wrong dates"; then checked as
// OK of Account Preparation checks them, a stay longer than three weeks
// asking the Long Stay Query. The dates are left shortened.
[[nodiscard]] AccountDatesCheck checkStayDates(std::string& arrival, std::string& departure,
                                               int currentYear, DateEntryState& state);

} // namespace purrlodge
