#include "gui/app/TDlg11.h"

#include <QDialogButtonBox>
#include <QLabel>
#include <QMessageBox>
#include <QPushButton>

#include "gui/DialogButtons.h"

namespace purrlodge {

TDlg11::TDlg11(QWidget* parent) : QDialog(parent)
{
    setObjectName(QStringLiteral("directoryCheckDialog"));
    setWindowTitle(QStringLiteral("Directory Check"));

    auto* question = new QLabel(
        QStringLiteral("The path you have specified already contains cat-data for this program.\n\n"
                       "Do you wish to use this data ?"),
        this);
    question->setObjectName(QStringLiteral("questionLabel"));

    QDialogButtonBox* buttons =
        newButtonBox(this, QDialogButtonBox::Yes | QDialogButtonBox::No | QDialogButtonBox::Help);
    buttons->button(QDialogButtonBox::Yes)->setDefault(true);
    connectHelp(this, buttons, [this] { showHelp(); });

    layOutAboveButtons(this, question, buttons);
}

void TDlg11::showHelp()
{
    QMessageBox help(QMessageBox::Information, QStringLiteral("Directory Check"),
                     QStringLiteral("The folder you have chosen already holds the files of a "
                                    "Purrlodge data set (clients, cats, accounts and rates).\n\n"
                                    "Yes: work with that data. Nothing in the folder is changed "
                                    "or overwritten.\n\n"
                                    "No: leave that data alone; the folder is not registered "
                                    "and you can choose another one."),
                     QMessageBox::Ok, this);
    help.setObjectName(QStringLiteral("directoryCheckHelp"));
    help.exec();
}

} // namespace purrlodge
