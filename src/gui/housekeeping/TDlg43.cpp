#include "gui/housekeeping/TDlg43.h"

namespace purrlodge {

TDlg43::TDlg43(QWidget* parent)
    : HelpPage(QStringLiteral("backupHelpDialog"), QStringLiteral("Backup Help "),
               QStringLiteral(
                   "A backup is a second copy of all your Purrlodge data: clients, cats, "
                   "accounts, notes, rates and your cattery's details. Choose where it goes:\n\n"
                   "Use Floppy (drive A:): the data is copied onto floppy discs, as many as it "
                   "needs; you are asked for each disc in turn. Everything already on the discs "
                   "is deleted, so use blank discs or discs kept for Purrlodge.\n\n"
                   "Use another drive: the data is copied into a folder on the drive you name "
                   "(\"MyCatData\" unless you type another name). Any old files in that folder "
                   "are deleted first, so give the backup a folder of its own.\n\n"
                   "Drive letters: each letter stands for a folder on this computer. Type the "
                   "letter; the note beside it shows the folder it stands for. When it says the "
                   "letter is not set up, click Browse... and pick the folder, for example your "
                   "memory stick. Purrlodge remembers it for next time.\n\n"
                   "A USB memory stick is the best place for a backup: it is quick, holds "
                   "everything, and can be kept away from the computer."),
               56, parent)
{}

} // namespace purrlodge
