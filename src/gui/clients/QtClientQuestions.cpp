#include "gui/clients/QtClientQuestions.h"

#include <QMessageBox>

#include "gui/FrontWindow.h"
#include "gui/Text1252.h"
#include "gui/clients/FinderDialogs.h"
#include "gui/clients/TDlg12.h"
#include "gui/clients/TDlg16.h"
#include "gui/clients/TDlg3.h"
#include "gui/clients/TDlg37.h"
#include "gui/clients/TDlg38.h"
#include "gui/clients/TDlg40.h"
#include "gui/clients/TDlg45.h"
#include "gui/clients/TDlg5.h"
#include "gui/clients/TDlg50.h"
#include "gui/clients/TDlg51.h"
#include "gui/clients/TDlg52.h"
#include "gui/clients/TDlg53.h"
#include "gui/clients/TDlg62.h"
#include "gui/clients/TDlg80.h"

namespace purrlodge {

QWidget* QtClientQuestions::parent() const
{
    return frontWindow(mainWindow_);
}

std::optional<FinderEntry> QtClientQuestions::askClientName(const FinderOptions& options,
                                                            const FinderEntry& shown)
{
    return askClientNameInDialog(options, shown, parent());
}

std::optional<int> QtClientQuestions::chooseMatch(const FinderResult& result)
{
    return chooseMatchInDialog(result, parent());
}

std::optional<FormVerdict> QtClientQuestions::fillClientForm(const ClientForm& initial,
                                                             const OkRule<ClientForm>& onOk)
{
    TDlg3 dialog(initial, onOk, parent());
    dialog.exec();
    return dialog.verdict();
}

bool QtClientQuestions::confirmSurnameChange()
{
    TDlg5 dialog(parent());
    return dialog.exec() == QDialog::Accepted;
}

bool QtClientQuestions::continueDespiteBirthYear(const DateWarning& warning)
{
    TDlg16 dialog(warning, TDlg16::Choice::ContinueOrCancel, parent());
    return dialog.exec() == QDialog::Accepted;
}

void QtClientQuestions::showDateWarning(const DateWarning& warning)
{
    TDlg16 dialog(warning, TDlg16::Choice::Close, parent());
    dialog.exec();
}

std::optional<LeavingCatAnswer> QtClientQuestions::askWhyCatLeft(const std::string& catName)
{
    TDlg50 dialog(catName, parent());
    if (dialog.exec() != QDialog::Accepted)
        return std::nullopt;
    return dialog.answer();
}

CatNameChoice QtClientQuestions::askCatNameChange(const std::string& oldName,
                                                  const std::string& newName)
{
    TDlg51 dialog(oldName, newName, parent());
    dialog.exec();
    return dialog.choice();
}

void QtClientQuestions::showClientDetails(const ClientDetailsListing& details,
                                          const OtherCatsListing& otherCats,
                                          const OtherCatsListing& specialNotes)
{
    TDlg12 dialog(
        details,
        [&](QWidget* detailsDialog, OtherCatsMode mode) {
            TDlg52 list(mode == OtherCatsMode::NoteBook ? specialNotes : otherCats, detailsDialog);
            list.exec();
        },
        printDetails_ ? TDlg12::PrintListing([this, &details] { printDetails_(details); })
                      : TDlg12::PrintListing(),
        parent());
    dialog.exec();
}

std::optional<GlobalSearchRequest> QtClientQuestions::askGlobalSearch()
{
    TDlg37 dialog(parent());
    if (dialog.exec() != QDialog::Accepted)
        return std::nullopt;
    return dialog.request();
}

void QtClientQuestions::showGlobalSearchResults(const GlobalSearchResult& result,
                                                const ResultLineAction& showDetails)
{
    TDlg38 dialog(result, showDetails, parent());
    dialog.exec();
}

std::optional<FormVerdict>
QtClientQuestions::fillNoteBook(const std::string& heading, const std::vector<std::string>& lines,
                                const OkRule<std::vector<std::string>>& onOk)
{
    TDlg45 dialog(heading, lines, onOk, parent());
    dialog.exec();
    return dialog.verdict();
}

std::optional<FormVerdict> QtClientQuestions::fillAutoMemo(const std::string& memo,
                                                           const OkRule<std::string>& onOk)
{
    TDlg62 dialog(memo, onOk, parent());
    dialog.exec();
    return dialog.verdict();
}

std::optional<FormVerdict> QtClientQuestions::fillAccountNote(const std::string& note,
                                                              const OkRule<std::string>& onOk)
{
    TDlg80 dialog(note, onOk, parent());
    dialog.exec();
    return dialog.verdict();
}

std::optional<ClientDeletionChoice> QtClientQuestions::askDeletion(const std::string& text)
{
    TDlg40 dialog(text, parent());
    if (dialog.exec() != QDialog::Accepted)
        return std::nullopt;
    return dialog.choice();
}

bool QtClientQuestions::confirmRemovalForGood(const std::string& question)
{
    QMessageBox box(QMessageBox::Question, QStringLiteral("Remove Client"),
                    fromWindows1252(question), QMessageBox::Yes | QMessageBox::No, parent());
    box.setObjectName(QStringLiteral("removeClientBox"));
    box.setTextFormat(Qt::PlainText);
    box.setDefaultButton(QMessageBox::No);
    return box.exec() == QMessageBox::Yes;
}

std::optional<PastClientChoice>
QtClientQuestions::chooseInPastClients(const std::string& caption,
                                       const std::vector<std::string>& lines)
{
    TDlg53 dialog(caption, lines, parent());
    dialog.exec();
    return dialog.choice();
}

void QtClientQuestions::showPastClientDetails(const ClientDetailsListing& listing)
{
    TDlg12 dialog(listing, parent());
    dialog.exec();
}

} // namespace purrlodge
