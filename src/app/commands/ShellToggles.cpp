#include "app/commands/ShellToggles.h"

#include <string_view>

#include "app/Session.h"

namespace purrlodge {

namespace {

// Flips a setting only when its key was written, so the menu's tick never
// shows what the settings file does not hold.
void toggle(Session& session, bool& setting, std::string_view key, std::string_view on,
            std::string_view off)
{
    if (session.ports.profile.write(key, !setting ? on : off))
        setting = !setting;
}

} // namespace

void toggleDigitalClock(Session& session)
{
    toggle(session, session.shell.digitalClock, "ClkTyp", "D", "C");
}

void togglePictureNoteIndicator(Session& session)
{
    toggle(session, session.shell.pictureNoteIndicator, "musnotes", "Y", "N");
}

void toggleBackupReminder(Session& session)
{
    toggle(session, session.shell.backupReminder, "RemStatus", "1", "0");
}

} // namespace purrlodge
