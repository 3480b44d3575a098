#include "gui/housekeeping/TDlg41.h"

#include "gui/Text1252.h"

namespace purrlodge {

namespace {

QString adviceText(const std::string& reminderNote)
{
    return QStringLiteral(
               "Your client records and accounts are kept only on this computer. A broken "
               "disc, a theft or a fire would take them all with it, so keep a second copy.\n\n"
               "Back up at least once a week, and again after a busy day of arrivals and "
               "accounts: Good-Housekeeping | Backup My Data.\n\n"
               "Back up onto a USB memory stick and keep the stick away from the computer, "
               "somewhere safe, so that whatever happens to one does not happen to the "
               "other. Two sticks used in turn are better still.\n\n"
               "Good-Housekeeping | Restore Data From Backup brings your data back as it was "
               "when the backup was made: anything entered since then is lost, so back up "
               "often.\n\n") +
           fromWindows1252(reminderNote);
}

} // namespace

TDlg41::TDlg41(const std::string& reminderNote, QWidget* parent)
    : HelpPage(QStringLiteral("backupAdviceDialog"), QStringLiteral("Advice on Backingup"),
               adviceText(reminderNote), 56, parent)
{}

} // namespace purrlodge
