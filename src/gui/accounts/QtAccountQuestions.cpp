#include "gui/accounts/QtAccountQuestions.h"

#include <QMessageBox>

#include "gui/FrontWindow.h"
#include "gui/Text1252.h"
#include "gui/accounts/TDlg17.h"
#include "gui/accounts/TDlg25.h"
#include "gui/accounts/TDlg26.h"
#include "gui/accounts/TDlg59.h"
#include "gui/accounts/TDlg60.h"
#include "gui/accounts/TDlg63.h"
#include "gui/accounts/TDlg79.h"
#include "gui/accounts/TDlg8.h"
#include "gui/clients/FinderDialogs.h"
#include "gui/clients/TDlg16.h"
#include "gui/clients/TDlgArrivalSheet.h"
#include "gui/clients/TDlgRegisterPeriod.h"

namespace purrlodge {

QWidget* QtAccountQuestions::parent() const
{
    return frontWindow(mainWindow_);
}

std::optional<FinderEntry> QtAccountQuestions::askClientName(const FinderOptions& options,
                                                             const FinderEntry& shown)
{
    return askClientNameInDialog(options, shown, parent());
}

std::optional<int> QtAccountQuestions::chooseMatch(const FinderResult& result)
{
    return chooseMatchInDialog(result, parent());
}

bool QtAccountQuestions::askToDeleteAutoMemo(const std::string& caption, const std::string& memo)
{
    TDlg63 dialog(caption, memo, parent());
    return dialog.exec() == QDialog::Accepted;
}

std::optional<FormVerdict>
QtAccountQuestions::fillAccountPreparation(const AccountPreparationForm& initial,
                                           AccountPreparation& preparation,
                                           const OkRule<AccountPreparationForm>& onOk)
{
    // The note book opens in front of Account Preparation, the window in front.
    TDlg8::ShowSpecialNotes showSpecialNotes;
    if (editSpecialNotes_)
        showSpecialNotes = [this](QWidget*) { editSpecialNotes_(); };
    TDlg8 dialog(initial, preparation, onOk, showSpecialNotes, parent());
    dialog.exec();
    return dialog.verdict();
}

void QtAccountQuestions::showApparentDateError(const DateWarning& warning)
{
    TDlg16 dialog(warning, TDlg16::Choice::Close, parent());
    dialog.exec();
}

bool QtAccountQuestions::confirmLongStay(const std::string& question)
{
    TDlg17 dialog(question, parent());
    return dialog.exec() == QDialog::Accepted;
}

SimilarAccountAnswer QtAccountQuestions::askSimilarAccount(const std::string& question)
{
    TDlg79 dialog(question, parent());
    dialog.exec();
    return dialog.answer();
}

std::optional<PastAccountChoice>
QtAccountQuestions::chooseInAccountList(const ClientAccountsList& list)
{
    TDlg25 dialog(list, parent());
    dialog.exec();
    return dialog.choice();
}

void QtAccountQuestions::showAccountSummary(const std::vector<std::string>& lines)
{
    TDlg26 dialog(lines, parent());
    dialog.exec();
}

bool QtAccountQuestions::confirmAccountDeletion(const std::string& question)
{
    QMessageBox box(QMessageBox::Question, QStringLiteral("Delete Account"),
                    fromWindows1252(question), QMessageBox::Yes | QMessageBox::No, parent());
    box.setObjectName(QStringLiteral("deleteAccountBox"));
    box.setTextFormat(Qt::PlainText);
    box.setDefaultButton(QMessageBox::No);
    return box.exec() == QMessageBox::Yes;
}

std::optional<FormVerdict> QtAccountQuestions::askAccountNumber(const OkRule<std::string>& onOk)
{
    TDlg59 dialog(onOk, parent());
    dialog.exec();
    return dialog.verdict();
}

void QtAccountQuestions::showNumberedAccounts(const std::vector<std::string>& lines)
{
    TDlg60 dialog(lines, parent());
    dialog.exec();
}

std::optional<FormVerdict>
QtAccountQuestions::fillArrivalForm(const ArrivalForm& initial, const RatesRecord& rates,
                                    const OkRule<ArrivalForm>& onOk,
                                    const std::function<void()>& printRegister)
{
    TDlgArrivalSheet dialog(initial, rates, onOk, printRegister, parent());
    dialog.exec();
    return dialog.verdict();
}

std::optional<FormVerdict>
QtAccountQuestions::fillRegisterPeriod(const RegisterPeriod& initial,
                                       const OkRule<RegisterPeriod>& onOk)
{
    TDlgRegisterPeriod dialog(initial, onOk, parent());
    dialog.exec();
    return dialog.verdict();
}

} // namespace purrlodge
