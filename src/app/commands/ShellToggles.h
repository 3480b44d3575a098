#pragma once

namespace purrlodge {

class Session;

// The Setup and Good-Housekeeping toggles. Each flips its setting at once and
// writes its key at once (a key that cannot be written leaves the setting
// as it was); the main window repaints afterwards.

// Setup | Digital Clock (11861): ClkTyp "D" (digital) or "C" (analog).
void toggleDigitalClock(Session& session);

// Setup | Show Pic-Note indicator (11875): musnotes "Y" or "N".
void togglePictureNoteIndicator(Session& session);

// Good-Housekeeping | Remind Me! (11856): RemStatus "1" (on) or "0" (off).
void toggleBackupReminder(Session& session);

} // namespace purrlodge
