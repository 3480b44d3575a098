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
#include "app/commands/Exports.h"
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

// A form dialog typed into from a script: each entry (a whole form) or step
// (a change to the entries as they stand) is one press of OK, handed to the
// core's rule until it lets the dialog close; when the script runs out first,
// the dialog is cancelled.
template <class Form, class... Extra> struct ScriptedForm {
    using Step = std::function<void(Form&, Extra&...)>;

    std::optional<FormVerdict> run(Form form, const OkRule<Form>& onOk, Extra&... extra)
    {
        shown.push_back(form);
        while (!entries.empty() || !steps.empty()) {
            if (!entries.empty())
                form = next(entries);
            else
                next(steps)(form, extra...);
            verdicts.push_back(onOk(form));
            if (verdicts.back() != FormVerdict::StayOpen)
                return verdicts.back();
        }
        return std::nullopt;
    }

    std::deque<Form> entries;          // typed before each OK
    std::deque<Step> steps;            // or changes made before each OK
    std::vector<Form> shown;           // what each opening showed
    std::vector<FormVerdict> verdicts; // what each OK came to
};

// The client finder answered from scripts, for every interface that asks it;
// records what was asked.
template <class... Questions> struct ScriptedFinder : Questions... {
    std::optional<FinderEntry> askClientName(const FinderOptions&,
                                             const FinderEntry& shown) override
    {
        namesShown.push_back(shown);
        return next(names);
    }
    std::optional<int> chooseMatch(const FinderResult& result) override
    {
        matchRows.push_back(result.rows);
        return next(matches);
    }

    // The name typed, then the row chosen among its matches.
    void choose(std::string name, int row = 0)
    {
        names = {FinderEntry{std::move(name)}};
        matches = {row};
    }

    std::deque<std::optional<FinderEntry>> names;
    std::deque<std::optional<int>> matches;
    std::vector<FinderEntry> namesShown;
    std::vector<std::vector<std::string>> matchRows;
};

// The set-up questions answered from scripts.
struct ScriptedSetupQuestions : StartupQuestions, ChangeDataSetQuestions, CatterySetupQuestions {
    std::optional<std::string> askDirectorySetup(const std::string& suggestion) override
    {
        directorySetupSuggestions.push_back(suggestion);
        return next(directorySetupAnswers);
    }
    bool askDirectoryCheck() override { return next(directoryCheckAnswers); }
    bool askNewDirectory(const std::string& folder) override
    {
        newDirectoriesAsked.push_back(folder);
        return false;
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
struct ScriptedClientQuestions : ScriptedFinder<ClientEntryQuestions, ClientLookupQuestions> {
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
struct ScriptedAccountQuestions
    : ScriptedFinder<IssueAccountQuestions, PastAccountsQuestions, ArrivalQuestions> {

    bool askToDeleteAutoMemo(const std::string& caption, const std::string& memo) override
    {
        asked.push_back(caption + ": " + memo);
        return deleteMemo;
    }
    std::optional<FormVerdict>
    fillAccountPreparation(const AccountPreparationForm& initial, AccountPreparation& preparation,
                           const OkRule<AccountPreparationForm>& onOk) override
    {
        return preparing.run(initial, onOk, preparation);
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

    std::optional<FormVerdict> fillArrivalForm(const ArrivalForm& initial, const RatesRecord&,
                                               const OkRule<ArrivalForm>& onOk,
                                               const std::function<void()>&) override
    {
        return arrival.run(initial, onOk);
    }
    std::optional<FormVerdict> fillRegisterPeriod(const RegisterPeriod& initial,
                                                  const OkRule<RegisterPeriod>& onOk) override
    {
        periodsShown.push_back(initial.from + "-" + initial.to);
        return period.run(initial, onOk);
    }

    bool deleteMemo = false;
    ScriptedForm<ArrivalForm> arrival;
    std::vector<std::string> periodsShown;
    ScriptedForm<RegisterPeriod> period;
    ScriptedForm<AccountPreparationForm, AccountPreparation> preparing;
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
struct ScriptedNotesQuestions : ScriptedFinder<ClientNotesQuestions, ClientRemovalQuestions> {
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

// The export commands' questions answered from scripts; records what each
// dialog showed.
struct ScriptedExportQuestions : ExportQuestions {
    std::optional<LabelStyle> chooseAddressFormat(LabelStyle current) override
    {
        stylesShown.push_back(current);
        return next(styles);
    }
    bool askToOpenDataFolder(const std::string& fileName) override
    {
        openAsked.push_back(fileName);
        return next(openAnswers);
    }
    void openDataFolder(const std::string& folder) override { foldersOpened.push_back(folder); }
    void fillInactiveClients(const InactiveRule& onOk) override
    {
        while (!cutOffDates.empty())
            inactiveResults.push_back(onOk(next(cutOffDates)));
    }
    // Presses "File the List" as often as scripted, then Print or Close.
    bool showNameList(const std::vector<std::string>& lines,
                      const std::function<void()>& fileTheList) override
    {
        nameLists.push_back(lines);
        for (int press = 0; press < fileListPresses; ++press)
            fileTheList();
        return next(printAnswers);
    }

    std::deque<std::optional<LabelStyle>> styles;
    std::vector<LabelStyle> stylesShown;
    std::deque<bool> openAnswers;
    std::vector<std::string> openAsked;
    std::vector<std::string> foldersOpened;
    std::deque<std::string> cutOffDates; // typed before each OK; Close once used up
    std::vector<std::string> inactiveResults;
    int fileListPresses = 0;
    std::deque<bool> printAnswers;
    std::vector<std::vector<std::string>> nameLists;
};

} // namespace purrlodge::testing
