#pragma once

#include <cstdint>
#include <optional>
#include <string_view>

#include "ports/Ui.h"

namespace purrlodge {

class Clock;
class Profile;

// More than thirty days since the last backup: now - last >= this.
inline constexpr std::int64_t backupAlertAfterSeconds = 2592001;

// The backup reminder as RemStatus sets it: "1" is on, any other non-empty
// value is off, a missing or empty value is on.
[[nodiscard]] bool backupReminderFrom(std::string_view remStatus);

// The "Backup Alert" message due at `now` for a last backup at `lastBackup`
// (0: never), or nothing when no alert is due.
[[nodiscard]] std::optional<Message> backupAlertFor(std::int64_t lastBackup, bool reminderOn,
                                                    std::int64_t now, const Clock& clock);

// The start-up backup alert: reads LastBkDate and RemStatus, shows the alert
// when due and then writes LastWarn = now. The alert comes at every start for
// as long as no backup is made. Returns the reminder setting read.
bool runBackupAlert(Ui& ui, Profile& profile, const Clock& clock);

} // namespace purrlodge
