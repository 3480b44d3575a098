#pragma once

#include <deque>
#include <functional>
#include <optional>
#include <string>
#include <vector>

#include "app/StartupSequence.h"
#include "app/commands/ArrivalSheet.h"
#include "app/commands/CatterySetup.h"
#include "app/commands/ChangeDataSet.h"
#include "app/commands/ClientEntry.h"
#include "app/commands/ClientLookup.h"
#include "app/commands/ClientNotes.h"
#include "app/commands/ClientRemoval.h"
#include "app/commands/IssueAccount.h"
#include "app/commands/PastAccounts.h"

namespace purrlodge::testing {

// Takes the next scripted answer; an unscripted question gets `otherwise`
// (Cancel, No or nothing).
template <class T> T next(std::deque<T>& answers, T otherwise = T{})
{
    if (answers.empty())
        return otherwise;
    T answer = std::move(answers.front());
    answers.pop_front();
    return answer;
}

// A form dialog typed into from a script: each entry is one press of OK,
// handed to the core's rule until it lets the dialog close; when the script
// runs out first, the dialog is cancelled.
template <class Form> struct ScriptedForm {
    std::optional<FormVerdict> run(const Form& initial, const OkRule<Form>& onOk)
    {
        shown.push_back(initial);
        while (!entries.empty()) {
            if (beforeOk)
                beforeOk(verdicts.size());
            const FormVerdict verdict = onOk(next(entries));
            verdicts.push_back(verdict);
            if (verdict != FormVerdict::StayOpen)
                return verdict;
        }
        return std::nullopt;
    }

    std::deque<Form> entries;          // typed before each OK
    std::vector<Form> shown;           // what each opening showed
    std::vector<FormVerdict> verdicts; // what each OK came to
    // Runs before each OK with the number of OKs pressed so far: a fault can
    // be made or put right between two presses.
    std::function<void(std::size_t)> beforeOk;
};

// The set-up questions answered from scripts.
struct ScriptedSetupQuestions : StartupQuestions, ChangeDataSetQuestions, CatterySetupQuestions {
    std::optional<std::string> askDirectorySetup(const std::string& suggestion) override
    {
        directorySetupSuggestions.push_back(suggestion);
        return next(directorySetupAnswers);
    }
    bool askDirectoryCheck() override
    {
        ++directoryChecksAsked;
        return next(directoryCheckAnswers);
    }
    bool askNewDirectory(const std::string& folder) override
    {
        newDirectoriesAsked.push_back(folder);
        return next(newDirectoryAnswers);
    }
    std::optional<FormVerdict> fillChangeDataSource(const std::string& currentFolder,
                                                    const OkRule<std::string>& onOk) override
    {
        return changeDataSource.run(currentFolder, onOk);
    }
    std::optional<FormVerdict>
    fillEstablishmentDetails(const EstablishmentForm& initial, const std::string& dataFolder,
                             const OkRule<EstablishmentForm>& onOk) override
    {
        establishmentFolders.push_back(dataFolder);
        return establishment.run(initial, onOk);
    }
    std::optional<FormVerdict> fillRates(const RatesForm& initial,
                                         const OkRule<RatesForm>& onOk) override
    {
        return rates.run(initial, onOk);
    }
    std::optional<FormVerdict> fillExchangeRate(const ExchangeRateForm& initial,
                                                const OkRule<ExchangeRateForm>& onOk) override
    {
        return exchangeRate.run(initial, onOk);
    }
    std::optional<FormVerdict> fillStandardExtra(const StandardExtraForm& initial,
                                                 const OkRule<StandardExtraForm>& onOk) override
    {
        return standardExtra.run(initial, onOk);
    }
    std::optional<FormVerdict> fillReceiptNumber(const std::string& offer,
                                                 const OkRule<std::string>& onOk) override
    {
        return receiptNumber.run(offer, onOk);
    }

    std::deque<std::optional<std::string>> directorySetupAnswers;
    std::vector<std::string> directorySetupSuggestions;
    std::deque<bool> directoryCheckAnswers;
    int directoryChecksAsked = 0;
    std::deque<bool> newDirectoryAnswers;
    std::vector<std::string> newDirectoriesAsked;
    ScriptedForm<std::string> changeDataSource;
    ScriptedForm<EstablishmentForm> establishment;
    std::vector<std::string> establishmentFolders;
    ScriptedForm<RatesForm> rates;
    ScriptedForm<ExchangeRateForm> exchangeRate;
    ScriptedForm<StandardExtraForm> standardExtra;
    ScriptedForm<std::string> receiptNumber;
};

// The client commands' questions answered from scripts; records what was asked.
struct ScriptedClientQuestions : ClientEntryQuestions, ClientLookupQuestions {
    std::optional<FinderEntry> askClientName(const FinderOptions& options,
                                             const FinderEntry& shown) override
    {
        finderOptions.push_back(options);
        namesShown.push_back(shown);
        return next(names);
    }
    std::optional<int> chooseMatch(const FinderResult& result) override
    {
        matchRows.push_back(result.rows);
        return next(matches);
    }

    std::optional<FormVerdict> fillClientForm(const ClientForm& initial,
                                              const OkRule<ClientForm>& onOk) override
    {
        return clientForm.run(initial, onOk);
    }
    bool confirmSurnameChange() override
    {
        ++surnameAlerts;
        return surnameYes;
    }
    bool continueDespiteBirthYear(const DateWarning& warning) override
    {
        warnings.push_back(warning);
        return continueAfterWarning;
    }
    void showDateWarning(const DateWarning& warning) override { warnings.push_back(warning); }
    std::optional<LeavingCatAnswer> askWhyCatLeft(const std::string& catName) override
    {
        asked.push_back("left " + catName);
        return leaving;
    }
    CatNameChoice askCatNameChange(const std::string& oldName, const std::string& newName) override
    {
        asked.push_back(oldName + ">" + newName);
        return nameChoice;
    }

    void showClientDetails(const ClientDetailsListing& details, const OtherCatsListing& otherCats,
                           const OtherCatsListing& specialNotes) override
    {
        detailsShown.push_back(details);
        otherCatsShown.push_back(otherCats);
        specialNotesShown.push_back(specialNotes);
    }
    std::optional<GlobalSearchRequest> askGlobalSearch() override { return next(searches); }
    void showGlobalSearchResults(const GlobalSearchResult& result,
                                 const ResultLineAction& showDetails) override
    {
        results.push_back(result);
        for (const std::size_t line : detailsOfLines)
            showDetails(result.lines.at(line));
    }

    std::deque<std::optional<FinderEntry>> names;
    std::vector<FinderOptions> finderOptions;
    std::vector<FinderEntry> namesShown;
    std::deque<std::optional<int>> matches;
    std::vector<std::vector<std::string>> matchRows;

    ScriptedForm<ClientForm> clientForm;
    bool surnameYes = false;
    int surnameAlerts = 0;
    bool continueAfterWarning = false;
    std::vector<DateWarning> warnings;
    std::optional<LeavingCatAnswer> leaving; // Cancel unless set
    CatNameChoice nameChoice = CatNameChoice::NameChanged;
    std::vector<std::string> asked;

    std::vector<ClientDetailsListing> detailsShown;
    std::vector<OtherCatsListing> otherCatsShown;
    std::vector<OtherCatsListing> specialNotesShown;
    std::deque<std::optional<GlobalSearchRequest>> searches;
    std::vector<GlobalSearchResult> results;
    std::vector<std::size_t> detailsOfLines; // lines whose "Show Details" is pressed
};

// The account and arrival commands' questions answered from scripts; records
// what was asked.
struct ScriptedAccountQuestions : IssueAccountQuestions, PastAccountsQuestions, ArrivalQuestions {
    using Typing = std::function<void(AccountPreparationForm&, AccountPreparation&)>;

    std::optional<FinderEntry> askClientName(const FinderOptions&, const FinderEntry&) override
    {
        return next(names);
    }
    std::optional<int> chooseMatch(const FinderResult&) override { return next(matches); }

    bool askToDeleteAutoMemo(const std::string& caption, const std::string& memo) override
    {
        asked.push_back(caption + ": " + memo);
        return deleteMemo;
    }
    // Account Preparation: each entry of `typing` changes the entries as they
    // stand and presses OK; when the script runs out the dialog is cancelled.
    std::optional<FormVerdict>
    fillAccountPreparation(const AccountPreparationForm& initial, AccountPreparation& preparation,
                           const OkRule<AccountPreparationForm>& onOk) override
    {
        opened.push_back(initial);
        AccountPreparationForm form = initial;
        while (!typing.empty()) {
            next(typing)(form, preparation);
            verdicts.push_back(onOk(form));
            if (verdicts.back() != FormVerdict::StayOpen)
                return verdicts.back();
        }
        return std::nullopt;
    }
    void showApparentDateError(const DateWarning& warning) override
    {
        asked.push_back(warning.message + " / " + warning.detail);
    }
    bool confirmLongStay(const std::string& question) override
    {
        asked.push_back(question);
        return next(longStayRight);
    }
    SimilarAccountAnswer askSimilarAccount(const std::string& question) override
    {
        asked.push_back(question);
        return next(similarAnswers, SimilarAccountAnswer::KeepBoth);
    }

    std::optional<PastAccountChoice> chooseInAccountList(const ClientAccountsList& list) override
    {
        lists.push_back(list);
        return next(listChoices);
    }
    void showAccountSummary(const std::vector<std::string>& lines) override
    {
        summaries.push_back(lines);
    }
    bool confirmAccountDeletion(const std::string& question) override
    {
        asked.push_back(question);
        return next(deleteAnswers);
    }
    std::optional<FormVerdict> askAccountNumber(const OkRule<std::string>& onOk) override
    {
        return accountNumber.run({}, onOk);
    }
    void showNumberedAccounts(const std::vector<std::string>& lines) override
    {
        found.push_back(lines);
    }

    // The arrival form: each entry changes the entries as they stand and
    // presses OK; `pressRegister` presses "Admission Register" first.
    std::optional<FormVerdict> fillArrivalForm(const ArrivalForm& initial, const RatesRecord&,
                                               const OkRule<ArrivalForm>& onOk,
                                               const std::function<void()>& printRegister) override
    {
        arrivalOpened.push_back(initial);
        if (pressRegister)
            printRegister();
        ArrivalForm form = initial;
        while (!arrivalTyping.empty()) {
            next(arrivalTyping)(form);
            verdicts.push_back(onOk(form));
            if (verdicts.back() != FormVerdict::StayOpen)
                return verdicts.back();
        }
        return std::nullopt;
    }
    std::optional<FormVerdict> fillRegisterPeriod(const RegisterPeriod& initial,
                                                  const OkRule<RegisterPeriod>& onOk) override
    {
        periodsShown.push_back(initial.from + "-" + initial.to);
        return period.run(initial, onOk);
    }

    std::deque<std::optional<FinderEntry>> names;
    std::deque<std::optional<int>> matches;
    bool deleteMemo = false;
    std::deque<std::function<void(ArrivalForm&)>> arrivalTyping;
    std::vector<ArrivalForm> arrivalOpened;
    bool pressRegister = false;
    std::vector<std::string> periodsShown;
    ScriptedForm<RegisterPeriod> period;
    std::deque<Typing> typing;
    std::vector<AccountPreparationForm> opened;
    std::vector<FormVerdict> verdicts;
    std::deque<bool> longStayRight;
    std::deque<SimilarAccountAnswer> similarAnswers;
    std::vector<std::string> asked;

    std::deque<std::optional<PastAccountChoice>> listChoices;
    std::vector<ClientAccountsList> lists;
    std::vector<std::vector<std::string>> summaries;
    std::deque<bool> deleteAnswers;
    ScriptedForm<std::string> accountNumber;
    std::vector<std::vector<std::string>> found;
};

// The notes and removal commands' questions answered from scripts.
struct ScriptedNotesQuestions : ClientNotesQuestions, ClientRemovalQuestions {
    std::optional<FinderEntry> askClientName(const FinderOptions&, const FinderEntry&) override
    {
        return next(names);
    }
    std::optional<int> chooseMatch(const FinderResult&) override { return next(matches); }

    std::optional<FormVerdict> fillNoteBook(const std::string& heading,
                                            const std::vector<std::string>& lines,
                                            const OkRule<std::vector<std::string>>& onOk) override
    {
        asked.push_back(heading);
        return noteBook.run(lines, onOk);
    }
    std::optional<FormVerdict> fillAutoMemo(const std::string& memo,
                                            const OkRule<std::string>& onOk) override
    {
        return autoMemo.run(memo, onOk);
    }
    std::optional<FormVerdict> fillAccountNote(const std::string& note,
                                               const OkRule<std::string>& onOk) override
    {
        return accountNote.run(note, onOk);
    }

    std::optional<ClientDeletionChoice> askDeletion(const std::string& text) override
    {
        asked.push_back(text);
        return next(deletions);
    }
    bool confirmRemovalForGood(const std::string&) override { return next(confirmations); }
    std::optional<PastClientChoice>
    chooseInPastClients(const std::string& caption, const std::vector<std::string>& lines) override
    {
        asked.push_back(caption);
        pastLists.push_back(lines);
        return next(pastChoices);
    }
    void showPastClientDetails(const ClientDetailsListing& listing) override
    {
        detailsShown.push_back(listing);
    }

    std::deque<std::optional<FinderEntry>> names;
    std::deque<std::optional<int>> matches;
    ScriptedForm<std::vector<std::string>> noteBook;
    ScriptedForm<std::string> autoMemo;
    ScriptedForm<std::string> accountNote;
    std::deque<std::optional<ClientDeletionChoice>> deletions;
    std::deque<bool> confirmations;
    std::deque<std::optional<PastClientChoice>> pastChoices;
    std::vector<std::vector<std::string>> pastLists;
    std::vector<ClientDetailsListing> detailsShown;
    std::vector<std::string> asked;
};

} // namespace purrlodge::testing
