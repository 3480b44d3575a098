#pragma once

#include <optional>
#include <string>

#include "accounts/AccountPreparation.h"
#include "app/commands/AutoMemoReminder.h"
#include "app/commands/FindClient.h"
#include "clients/ClientFormQuestions.h"
#include "ports/FormVerdict.h"

namespace purrlodge {

class Session;

// The answers of "Complication!" (DIALOG 79).
enum class SimilarAccountAnswer {
    Substitute, // "Yes": the new account replaces the filed one under its number
    KeepBoth,   // "No"
    GoBack,     // "Go Back": kept as "No", and the next account gets the same number
};

// The questions the checks of a stay's dates ask.
class StayDateQuestions {
public:
    virtual ~StayDateQuestions() = default;

    // Apparent Date Error (DIALOG 16), closed with Close.
    virtual void showApparentDateError(const DateWarning& warning) = 0;

    // Long Stay Query (DIALOG 17) asking `question`: true for "Right", false
    // for "Wrong".
    virtual bool confirmLongStay(const std::string& question) = 0;
};

// Asks what the check found: an Apparent Date Error is shown, a long stay is
// asked about. Whether the dates may stand.
bool stayDatesAccepted(const AccountDatesCheck& check, StayDateQuestions& questions);

// The questions of Tasks | Issue Account.
class IssueAccountQuestions : public FinderQuestions,
                              public MemoReminderQuestions,
                              public StayDateQuestions {
public:
    // Account Preparation (DIALOG 8) filled from `initial`. Its buttons work
    // the fee out through `preparation`; OK calls `onOk`, and the dialog stays
    // open while it answers StayOpen. The closing verdict, nothing on Cancel.
    virtual std::optional<FormVerdict>
    fillAccountPreparation(const AccountPreparationForm& initial, AccountPreparation& preparation,
                           const OkRule<AccountPreparationForm>& onOk) = 0;

    // "Complication!" (DIALOG 79) asking `question`.
    virtual SimilarAccountAnswer askSimilarAccount(const std::string& question) = 0;
};

// Tasks | Issue Account (11851): the finder, the memo reminder, Account
// Preparation, the similarity check, the account and its copy printed, then
// the account filed in the client's book and the receipt counter moved on.
// Printing that does not happen abandons the account: nothing is filed and
// the counter stays. A book or index that cannot be written is told, and the
// counter never moves past an account that is not on disc.
void issueAccount(Session& session, IssueAccountQuestions& questions);

} // namespace purrlodge
