#include "gui/housekeeping/TDlg67.h"

namespace purrlodge {

TDlg67::TDlg67(QWidget* parent)
    : HelpPage(QStringLiteral("restoreDetailsDialog"),
               QStringLiteral("Restore from Backup  (Details)"),
               QStringLiteral(
                   "A restore puts the data of your last backup in place of the data you are "
                   "working with now. Every client, cat, account, note and rate goes back to "
                   "what it was when that backup was made; anything entered since is lost.\n\n"
                   "The backup is first copied into a new folder beside your data folder. Only "
                   "when every file has been copied is that folder swapped in for your data "
                   "folder, so a restore that fails or is cancelled leaves your data as it "
                   "was.\n\n"
                   "Only data files are restored: the Purrlodge program file is never copied, "
                   "even when the backup folder holds one.\n\n"
                   "Afterwards the client list is read again from the restored data, and no "
                   "client is selected."),
               56, parent)
{}

} // namespace purrlodge
