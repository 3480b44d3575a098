#include "gui/app/TDlg31.h"

namespace purrlodge {

TDlg31::TDlg31(QWidget* parent)
    : HelpPage(QStringLiteral("changeDataSourceHelpDialog"),
               QStringLiteral("Change Data Source Help"),
               QStringLiteral(
                   "Purrlodge keeps all of its cat-data - clients, cats, stays, accounts, "
                   "rates and your cattery's details - in one data folder. The folder in use "
                   "is shown in the title bar of the main window, after \"Using Data in:\".\n\n"
                   "To work with data you already have (for instance a data set restored from "
                   "a backup, or the folder used on another computer), type that folder or "
                   "press Browse and pick it. Purrlodge recognises its data and asks whether "
                   "to use it.\n\n"
                   "To start a new, empty data set, type the name of a new folder. Purrlodge "
                   "makes it for you, and asks for your cattery's details the next time it "
                   "starts.\n\n"
                   "The change takes effect at the next start: after you press OK, Purrlodge "
                   "closes. Simply start it again.\n\n"
                   "Nothing is moved or deleted: the data in the old folder stays where it is, "
                   "and you can change back to it in the same way."),
               70, parent, QDialogButtonBox::Ok)
{}

} // namespace purrlodge
