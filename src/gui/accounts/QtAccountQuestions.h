#pragma once

#include <functional>

#include <QPointer>
#include <QWidget>

#include "app/commands/ArrivalSheet.h"
#include "app/commands/IssueAccount.h"
#include "app/commands/PastAccounts.h"

namespace purrlodge {

// The account commands' questions answered with their dialogs: the finder,
// the memo reminder, Account Preparation with the questions its OK asks, the
// similarity question, the client's account list and the numbered-account
// search; and those of the arrival form and the admission register, which
// share the finder, the memo reminder and the date questions. Each dialog is
// modal over the window in front.
class QtAccountQuestions : public IssueAccountQuestions,
                           public PastAccountsQuestions,
                           public ArrivalQuestions {
public:
    // mainWindow: the owner of the dialogs when no other dialog is open.
    explicit QtAccountQuestions(QWidget* mainWindow) : mainWindow_(mainWindow) {}

    std::optional<FinderEntry> askClientName(const FinderOptions& options,
                                             const FinderEntry& shown) override;
    std::optional<int> chooseMatch(const FinderResult& result) override;

    bool askToDeleteAutoMemo(const std::string& caption, const std::string& memo) override;
    std::optional<FormVerdict>
    fillAccountPreparation(const AccountPreparationForm& initial, AccountPreparation& preparation,
                           const OkRule<AccountPreparationForm>& onOk) override;
    void showApparentDateError(const DateWarning& warning) override;
    bool confirmLongStay(const std::string& question) override;
    SimilarAccountAnswer askSimilarAccount(const std::string& question) override;

    std::optional<PastAccountChoice> chooseInAccountList(const ClientAccountsList& list) override;
    void showAccountSummary(const std::vector<std::string>& lines) override;
    bool confirmAccountDeletion(const std::string& question) override;
    std::optional<FormVerdict> askAccountNumber(const OkRule<std::string>& onOk) override;
    void showNumberedAccounts(const std::vector<std::string>& lines) override;

    std::optional<FormVerdict> fillArrivalForm(const ArrivalForm& initial, const RatesRecord& rates,
                                               const OkRule<ArrivalForm>& onOk,
                                               const std::function<void()>& printRegister) override;
    std::optional<FormVerdict> fillRegisterPeriod(const RegisterPeriod& initial,
                                                  const OkRule<RegisterPeriod>& onOk) override;

    // Opens the current client's note book for editing, for the Special Notes
    // button of Account Preparation; without it the button is greyed.
    using SpecialNotesEditor = std::function<void()>;
    void setSpecialNotesEditor(SpecialNotesEditor editor) { editSpecialNotes_ = std::move(editor); }

private:
    [[nodiscard]] QWidget* parent() const;

    QPointer<QWidget> mainWindow_;
    SpecialNotesEditor editSpecialNotes_;
};

} // namespace purrlodge
