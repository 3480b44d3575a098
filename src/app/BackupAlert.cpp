#include "app/BackupAlert.h"

#include <cstdlib>
#include <string>

#include "ports/Clock.h"
#include "ports/Profile.h"
#include "store/TextHelpers.h"

namespace purrlodge {

bool backupReminderFrom(std::string_view remStatus)
{
    return remStatus.empty() || remStatus == "1";
}

std::optional<Message> backupAlertFor(std::int64_t lastBackup, bool reminderOn, std::int64_t now,
                                      const Clock& clock)
{
    // Compared without subtracting the stored date, which may be any 64-bit number.
    if (!reminderOn || lastBackup > now - backupAlertAfterSeconds)
        return std::nullopt;
    if (lastBackup == 0)
        return Message{"You have never backedup your precious Purrlodge Data", "Backup Alert",
                       MessageIcon::Exclamation};

    const CivilTime at = clock.toLocal(lastBackup);
    return Message{
        formatted("You have not backed up your Purrlodge Data since\n %02d:%02d on %02d/%02d/%02d",
                  at.hour, at.minute, at.day, at.month, at.year % 100),
        "Backup Alert", MessageIcon::Exclamation};
}

bool runBackupAlert(Ui& ui, Profile& profile, const Clock& clock)
{
    const std::string lastBackupText = profile.read("LastBkDate");
    const std::int64_t lastBackup = std::strtoll(lastBackupText.c_str(), nullptr, 10);
    const bool reminderOn = backupReminderFrom(profile.read("RemStatus"));
    // LastWarn only records when the alert was last shown; it never holds one back.

    const std::int64_t now = clock.now();
    if (const std::optional<Message> alert = backupAlertFor(lastBackup, reminderOn, now, clock)) {
        ui.showMessage(*alert);
        // LastWarn is only a record; a failure has been told and changes nothing.
        static_cast<void>(profile.write("LastWarn", std::to_string(now)));
    }
    return reminderOn;
}

} // namespace purrlodge
