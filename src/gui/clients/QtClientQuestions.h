#pragma once

#include <functional>

#include <QPointer>
#include <QWidget>

#include "app/commands/ClientEntry.h"
#include "app/commands/ClientLookup.h"
#include "app/commands/ClientNotes.h"
#include "app/commands/ClientRemoval.h"

namespace purrlodge {

// The client commands' questions answered with their dialogs: the finder, Full
// Client Information with the questions its OK asks, the full details, Global
// Search, the note book, the memo and the account note, and the deletion of
// clients with the past clients. Each dialog is modal over the window in front.
class QtClientQuestions : public ClientEntryQuestions,
                          public ClientLookupQuestions,
                          public ClientNotesQuestions,
                          public ClientRemovalQuestions {
public:
    // mainWindow: the owner of the dialogs when no other dialog is open.
    explicit QtClientQuestions(QWidget* mainWindow) : mainWindow_(mainWindow) {}

    std::optional<FinderEntry> askClientName(const FinderOptions& options,
                                             const FinderEntry& shown) override;
    std::optional<int> chooseMatch(const FinderResult& result) override;

    std::optional<FormVerdict> fillClientForm(const ClientForm& initial,
                                              const OkRule<ClientForm>& onOk) override;
    bool confirmSurnameChange() override;
    bool continueDespiteBirthYear(const DateWarning& warning) override;
    void showDateWarning(const DateWarning& warning) override;
    std::optional<LeavingCatAnswer> askWhyCatLeft(const std::string& catName) override;
    CatNameChoice askCatNameChange(const std::string& oldName, const std::string& newName) override;

    void showClientDetails(const ClientDetailsListing& details, const OtherCatsListing& otherCats,
                           const OtherCatsListing& specialNotes) override;
    std::optional<GlobalSearchRequest> askGlobalSearch() override;
    void showGlobalSearchResults(const GlobalSearchResult& result,
                                 const ResultLineAction& showDetails) override;

    std::optional<FormVerdict> fillNoteBook(const std::string& heading,
                                            const std::vector<std::string>& lines,
                                            const OkRule<std::vector<std::string>>& onOk) override;
    std::optional<FormVerdict> fillAutoMemo(const std::string& memo,
                                            const OkRule<std::string>& onOk) override;
    std::optional<FormVerdict> fillAccountNote(const std::string& note,
                                               const OkRule<std::string>& onOk) override;

    std::optional<ClientDeletionChoice> askDeletion(const std::string& text) override;
    bool confirmRemovalForGood(const std::string& question) override;
    std::optional<PastClientChoice>
    chooseInPastClients(const std::string& caption, const std::vector<std::string>& lines) override;
    void showPastClientDetails(const ClientDetailsListing& listing) override;

    // What the full details' Print button does with the listing shown.
    using DetailsPrinter = std::function<void(const ClientDetailsListing&)>;
    void setDetailsPrinter(DetailsPrinter printDetails) { printDetails_ = std::move(printDetails); }

private:
    [[nodiscard]] QWidget* parent() const;

    QPointer<QWidget> mainWindow_;
    DetailsPrinter printDetails_;
};

} // namespace purrlodge
