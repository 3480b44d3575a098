#include "app/commands/IssueAccount.h"

#include <cstdint>
#include <limits>

#include "accounts/AccountFiling.h"
#include "accounts/StandardExtra.h"
#include "app/CommandIds.h"
#include "app/Session.h"
#include "app/commands/Printing.h"
#include "print/PrintOptions.h"
#include "store/ClientFiles.h"

namespace purrlodge {

namespace {

// The number after `last`, kept within the 32 bits the index holds it in.
std::int32_t numberAfter(std::int32_t last)
{
    return last < std::numeric_limits<std::int32_t>::max() ? last + 1 : last;
}

// OK of Account Preparation, in order: the standard-extra decision, the
// receipt number, the dates, then the account worked out and committed: the
// client's visit dates and the stay record are saved. Nothing in memory
// changes unless the client record was saved.
class PreparationOk {
public:
    PreparationOk(Session& session, IssueAccountQuestions& questions, bool extraPending)
        : session_(session), questions_(questions), extraPending_(extraPending)
    {}

    FormVerdict operator()(const AccountPreparationForm& form)
    {
        Ui& ui = session_.ports.ui;
        if (extraPending_) {
            if (const auto missing =
                    standardExtraDecisionMissing(session_.rates, form.standardExtra)) {
                ui.showMessage(*missing);
                return FormVerdict::StayOpen;
            }
        }
        if (const auto badNumber = receiptNumberProblem(form)) {
            ui.showMessage(*badNumber);
            return FormVerdict::StayOpen;
        }
        if (!datesAccepted(form))
            return FormVerdict::StayOpen;

        AccountRecord account = session_.account;
        const FeeResult fee = computeFee(feeEntriesOf(form), session_.rates, session_.exchangeRate,
                                         session_.ports.clock, account);
        if (!fee.computed()) {
            ui.showMessage(*fee.refusal);
            return FormVerdict::StayOpen;
        }
        account.receiptNumber.set(receiptNumberOf(form));
        account.omitTopSheet.set(form.omitTopSheet ? 1 : 0);
        account.omitCopy.set(form.omitCopy ? 1 : 0);

        ClientRecord client = session_.client;
        client.arrivalDate.set(form.arrival);
        client.departureDate.set(form.departure);
        client.lastInDate.set(form.arrival);
        client.lastOutDate.set(form.departure);
        if (!writeClientRecord(session_.folder, session_.clientCode, client))
            return FormVerdict::StayOpen;
        session_.client = client;
        session_.account = account;
        if (!writeStayRecord(session_.folder, session_.clientCode, session_.stay))
            return FormVerdict::StayOpen;

        standardExtraAmount = fee.standardExtraAmount;
        insertNamesLine = form.insertNamesLine;
        return FormVerdict::Accept;
    }

    float standardExtraAmount = 0.0f;
    bool insertNamesLine = false;

private:
    bool datesAccepted(const AccountPreparationForm& form)
    {
        return stayDatesAccepted(checkAccountDates(form.arrival, form.departure,
                                                   session_.currentYear, session_.dates,
                                                   form.additionalNotes, session_.rates),
                                 questions_);
    }

    Session& session_;
    IssueAccountQuestions& questions_;
    bool extraPending_;
};

// The account as filed: its number after the similarity check, and how the
// receipt counter moves.
struct Numbering {
    bool substituted = false;
    std::int32_t counter = 0; // the last receipt number once the account is filed
};

Numbering numberAccount(AccountRecord& account, const AccountBook& book, std::int32_t last,
                        IssueAccountQuestions& questions)
{
    Numbering numbering{false, last};
    const bool newNumber = account.receiptNumber.get() == numberAfter(last);
    const AccountRecord& newest = book.accounts[accountBookSlots - 1];
    SimilarAccountAnswer answer = SimilarAccountAnswer::KeepBoth;
    if (newest.receiptNumber.get() != 0 && accountsLookSimilar(account, newest))
        answer = questions.askSimilarAccount(similarAccountQuestion(account, newest));

    switch (answer) {
    case SimilarAccountAnswer::Substitute:
        account.receiptNumber.set(newest.receiptNumber.get());
        numbering.substituted = true;
        break;
    case SimilarAccountAnswer::KeepBoth:
        if (newNumber)
            numbering.counter = numberAfter(last);
        break;
    case SimilarAccountAnswer::GoBack:
        // The counter is lowered and raised again: it stays where it was, so
        // the next account is given this account's number too.
        break;
    }
    return numbering;
}

} // namespace

bool stayDatesAccepted(const AccountDatesCheck& check, StayDateQuestions& questions)
{
    switch (check.verdict) {
    case AccountDatesVerdict::GoOn:
        return true;
    case AccountDatesVerdict::ApparentDateError:
        questions.showApparentDateError(
            {"Apparent Date Error", check.code, check.message, check.dateLabel});
        return false;
    case AccountDatesVerdict::AskLongStay:
        return questions.confirmLongStay(check.message);
    }
    return false;
}

void issueAccount(Session& session, IssueAccountQuestions& questions)
{
    const bool extraPending = standardExtraPending(session.rates);
    if (!findClient(session, questions, command::issueAccount))
        return;
    session.account = AccountRecord{};
    const std::int32_t last = session.index.lastAccountNumber.get();
    session.account.receiptNumber.set(numberAfter(last));

    remindOfAutoMemo(session, questions);

    const bool hasNoteBook =
        session.folder.exists(clientFileName(session.clientCode, extension::noteBook));
    const bool namesLineOn =
        colourPrintingFormOf(session.establishment, session.colourBlock, session.ports.profile)
            .namesOnAccount;
    AccountPreparation preparation(session.rates, session.exchangeRate, session.ports.clock,
                                   session.currentYear, session.dates, session.account);
    PreparationOk onOk(session, questions, extraPending);
    const std::optional<FormVerdict> verdict = questions.fillAccountPreparation(
        openAccountPreparation(session.client, session.stay, session.rates, numberAfter(last),
                               hasNoteBook, namesLineOn),
        preparation, std::ref(onOk));
    if (verdict != FormVerdict::Accept)
        return;

    AccountRecord& account = session.account;
    AccountBook book{};
    readAccountBook(session.folder, session.clientCode, book);
    account.filedTime.set(static_cast<std::int32_t>(session.ports.clock.now()));
    const Numbering numbering = numberAccount(account, book, last, questions);

    const AccountPrintout printout{session.rates.accountNote.str(),
                                   session.rates.standardExtraName.str(), onOk.standardExtraAmount,
                                   onOk.insertNamesLine};
    if (!printAccountAndCopy(session, printout))
        return;

    placeAccount(book, account, numbering.substituted);
    if (!writeAccountBook(session.folder, session.clientCode, book))
        return;
    ClientIndex index = session.index;
    index.lastAccountNumber.set(numbering.counter);
    if (!writeIndex(session.folder, index))
        return;
    session.index.lastAccountNumber.set(numbering.counter);

    if (session.diagnostics)
        session.ports.ui.showMessage({"Stage 'CMAC-4' Completed", "Finding Error"});
}

} // namespace purrlodge
