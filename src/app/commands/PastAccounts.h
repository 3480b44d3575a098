#pragma once

#include <optional>
#include <string>
#include <vector>

#include "accounts/AccountListings.h"
#include "app/commands/FindClient.h"
#include "ports/FormVerdict.h"

namespace purrlodge {

class Session;

// What the person does with a line of This Client's Accounts (DIALOG 25).
enum class PastAccountAction {
    Summary, // "Summary": Account Summary (DIALOG 26) of the account
    Reprint, // "Reprint": the account printed again as "Past Account"
    Delete,  // "Delete": the account taken out of the book
};

struct PastAccountChoice {
    PastAccountAction action = PastAccountAction::Summary;
    int line = -1; // the line selected, -1 for none
};

// The questions of Tasks | View Past Accounts and Tasks | Find Numbered
// Account.
class PastAccountsQuestions : public FinderQuestions {
public:
    // This Client's Accounts (DIALOG 25) listing `list`: the button pressed
    // with the line selected, nothing on Close.
    virtual std::optional<PastAccountChoice>
    chooseInAccountList(const ClientAccountsList& list) = 0;

    // Account Summary (DIALOG 26) showing the lines, closed with Close.
    virtual void showAccountSummary(const std::vector<std::string>& lines) = 0;

    // Asks whether the account should be deleted: true for Yes.
    virtual bool confirmAccountDeletion(const std::string& question) = 0;

    // Find Numbered Account (DIALOG 59): calls `onOk` with the typed text at
    // each OK; stays open while it answers StayOpen. Nothing on Cancel.
    virtual std::optional<FormVerdict> askAccountNumber(const OkRule<std::string>& onOk) = 0;

    // The accounts found (DIALOG 60), closed with OK.
    virtual void showNumberedAccounts(const std::vector<std::string>& lines) = 0;
};

// Tasks | View Past Accounts (11850): the finder, then the client's account
// list, from which an account is summarised, reprinted or deleted until the
// list is closed.
void viewPastAccounts(Session& session, PastAccountsQuestions& questions);

// Tasks | Find Numbered Account (11867): the number asked for, then every
// account of that number in the data folder.
void findNumberedAccount(Session& session, PastAccountsQuestions& questions);

} // namespace purrlodge
