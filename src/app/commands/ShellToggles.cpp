#include "app/ShellToggles.h"

#include "app/Session.h"

namespace purrlodge {

void toggleDigitalClock(Session& session)
{
    session.shell.digitalClock = !session.shell.digitalClock;
    session.ports.profile.write("ClkTyp", session.shell.digitalClock ? "D" : "C");
}

void togglePictureNoteIndicator(Session& session)
{
    session.shell.pictureNoteIndicator = !session.shell.pictureNoteIndicator;
    session.ports.profile.write("musnotes", session.shell.pictureNoteIndicator ? "Y" : "N");
}

void toggleBackupReminder(Session& session)
{
    session.shell.backupReminder = !session.shell.backupReminder;
    session.ports.profile.write("RemStatus", session.shell.backupReminder ? "1" : "0");
}

} // namespace purrlodge
