#include "gui/housekeeping/QtExportQuestions.h"

#include <QDesktopServices>
#include <QMessageBox>
#include <QUrl>

#include "gui/FrontWindow.h"
#include "gui/Text1252.h"
#include "gui/housekeeping/TDlg76.h"
#include "gui/housekeeping/TDlg81.h"
#include "gui/housekeeping/TDlg82.h"

namespace purrlodge {

QWidget* QtExportQuestions::parent() const
{
    return frontWindow(mainWindow_);
}

std::optional<LabelStyle> QtExportQuestions::chooseAddressFormat(LabelStyle current)
{
    TDlg81 dialog(current, parent());
    if (dialog.exec() != QDialog::Accepted)
        return std::nullopt;
    return dialog.style();
}

bool QtExportQuestions::askToOpenDataFolder(const std::string& fileName)
{
    QMessageBox box(QMessageBox::Question, QStringLiteral("Open Data Folder"),
                    QStringLiteral("%1 is in your data folder.\n\nDo you wish to open the folder "
                                   "to see it?")
                        .arg(fromWindows1252(fileName)),
                    QMessageBox::Yes | QMessageBox::No, parent());
    box.setObjectName(QStringLiteral("openDataFolderBox"));
    box.setTextFormat(Qt::PlainText);
    box.setDefaultButton(QMessageBox::No);
    return box.exec() == QMessageBox::Yes;
}

void QtExportQuestions::openDataFolder(const std::string& folder)
{
    const QString path = fromWindows1252(folder);
    if (QDesktopServices::openUrl(QUrl::fromLocalFile(path)))
        return;
    // Without a file manager the person still needs to know where to look.
    QMessageBox box(QMessageBox::Information, QStringLiteral("Open Data Folder"),
                    QStringLiteral("This computer has no program set up to show folders.\n\n"
                                   "Your file is in the folder:\n") +
                        path,
                    QMessageBox::Ok, parent());
    box.setObjectName(QStringLiteral("folderNotOpenedBox"));
    box.setTextFormat(Qt::PlainText);
    box.exec();
}

void QtExportQuestions::fillInactiveClients(const InactiveRule& onOk)
{
    TDlg82 dialog(onOk, parent());
    dialog.exec();
}

bool QtExportQuestions::showNameList(const std::vector<std::string>& lines,
                                     const std::function<void()>& fileTheList)
{
    TDlg76 dialog(lines, fileTheList, parent());
    dialog.exec();
    return dialog.printChosen();
}

} // namespace purrlodge
