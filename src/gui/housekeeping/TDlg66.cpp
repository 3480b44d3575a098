#include "gui/housekeeping/TDlg66.h"

#include <QDialogButtonBox>
#include <QLabel>
#include <QPushButton>

#include "gui/DialogButtons.h"
#include "gui/FieldEdit.h"
#include "gui/Text1252.h"
#include "gui/housekeeping/TDlg67.h"

namespace purrlodge {

TDlg66::TDlg66(const std::string& backupName, const std::string& backupFolder,
               const std::string& dataFolder, QWidget* parent)
    : QDialog(parent)
{
    setObjectName(QStringLiteral("restoreBackupDialog"));
    setWindowTitle(QStringLiteral("Restore Backup"));

    QLabel* text = newStaticLabel(QStringLiteral("restoreQuestionLabel"), this);
    text->setText(QStringLiteral("The backup in folder\n      %1\n(on this computer %2)\n"
                                 "will replace everything in your data folder\n      %3\n\n"
                                 "All your clients, accounts, notes and rates go back to what "
                                 "they were\nwhen that backup was made. Anything entered since "
                                 "then is lost.\n\nDo you want to restore the old data?")
                      .arg(fromWindows1252(backupName), fromWindows1252(backupFolder),
                           fromWindows1252(dataFolder)));

    // Yes is the box's accepting button, No its rejecting one; Return gives No.
    QDialogButtonBox* buttons =
        newButtonBox(this, QDialogButtonBox::Yes | QDialogButtonBox::No | QDialogButtonBox::Help);
    QPushButton* yes = buttons->button(QDialogButtonBox::Yes);
    yes->setText(QStringLiteral("&Yes, restore the old data"));
    yes->setObjectName(QStringLiteral("restoreButton"));
    yes->setAutoDefault(false);
    QPushButton* no = buttons->button(QDialogButtonBox::No);
    no->setText(QStringLiteral("&No, cancel this action"));
    no->setObjectName(QStringLiteral("cancelRestoreButton"));
    no->setDefault(true);
    QPushButton* help = buttons->button(QDialogButtonBox::Help);
    help->setText(QStringLiteral("&Help - Read Me First!"));
    help->setObjectName(QStringLiteral("restoreHelpButton"));
    connectHelp(this, buttons, [this] { showHelp(); });

    layOutAboveButtons(this, text, buttons);
    no->setFocus();
}

void TDlg66::showHelp()
{
    TDlg67 help(this);
    help.exec();
}

} // namespace purrlodge
