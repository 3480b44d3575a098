#include "app/commands/PastAccounts.h"

#include "accounts/AccountFiling.h"
#include "app/CommandIds.h"
#include "app/Session.h"
#include "app/commands/Printing.h"
#include "store/TextHelpers.h"

namespace purrlodge {

namespace {

// The receipt number of the chosen line, 0 when no account line is chosen.
int chosenReceipt(const ClientAccountsList& list, int line)
{
    if (line < 0 || line >= static_cast<int>(list.receiptOfLine.size()))
        return 0;
    return list.receiptOfLine[static_cast<std::size_t>(line)];
}

void deleteAccount(Session& session, PastAccountsQuestions& questions, int receipt)
{
    const AccountRecord& chosen = session.account;
    if (!questions.confirmAccountDeletion(formatted(
            "Delete account No. %d (in: %s out: %s) from this client's accounts?", receipt,
            chosen.arrivalDate.str().c_str(), chosen.departureDate.str().c_str())))
        return;
    AccountBook book{};
    readAccountBook(session.folder, session.clientCode, book);
    if (!removeAccount(book, receipt)) {
        session.ports.ui.showMessage(
            {formatted("Account No. %d is the oldest account kept for this client and "
                       "cannot be deleted.",
                       receipt),
             "Selection Error", MessageIcon::Exclamation});
        return;
    }
    if (writeAccountBook(session.folder, session.clientCode, book))
        session.account = AccountRecord{};
}

} // namespace

void viewPastAccounts(Session& session, PastAccountsQuestions& questions)
{
    if (!findClient(session, questions, command::viewPastAccounts))
        return;
    session.account = AccountRecord{};
    for (;;) {
        AccountBook book{};
        const bool readable = readAccountBook(session.folder, session.clientCode, book);
        const ClientAccountsList list =
            clientAccountsList(readable ? &book : nullptr, session.ports.clock);
        const std::optional<PastAccountChoice> choice = questions.chooseInAccountList(list);
        if (!choice)
            return;
        const int receipt = chosenReceipt(list, choice->line);
        const std::optional<int> slot = slotOfAccount(book, receipt);
        if (!slot) {
            session.ports.ui.showMessage(
                {"You have not selected a line!", "Selection Error", MessageIcon::Exclamation});
            continue;
        }
        session.account = book.accounts[*slot];
        switch (choice->action) {
        case PastAccountAction::Summary:
            questions.showAccountSummary(
                accountSummaryLines(session.client, session.account, session.rates));
            break;
        case PastAccountAction::Reprint:
            reprintPastAccount(session);
            break;
        case PastAccountAction::Delete:
            deleteAccount(session, questions, receipt);
            break;
        }
    }
}

void findNumberedAccount(Session& session, PastAccountsQuestions& questions)
{
    int number = 0;
    const std::optional<FormVerdict> verdict =
        questions.askAccountNumber([&](const std::string& typed) {
            const AccountNumberEntry entry = readAccountNumberEntry(typed);
            if (entry.refusal) {
                session.ports.ui.showMessage(*entry.refusal);
                return FormVerdict::StayOpen;
            }
            number = entry.number;
            return FormVerdict::Accept;
        });
    if (verdict != FormVerdict::Accept)
        return;
    questions.showNumberedAccounts(numberedAccountLines(session.folder, number));
}

} // namespace purrlodge
