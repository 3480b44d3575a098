#pragma once

#include <cstdint>
#include <optional>
#include <string>
#include <string_view>

#include "ports/Message.h"

namespace purrlodge {

class Drives;
class Profile;

// Where Backup My Data copies to: nothing chosen yet, the floppy set in
// drive A:, or a folder on another drive.
enum class BackupMedium { None, Floppy, OtherDrive };

// The entries of Backup Options (DIALOG 42).
struct BackupOptions {
    BackupMedium medium = BackupMedium::None;
    std::string folder; // the backup folder's name (edit 105)
    std::string drive;  // its drive letter (edit 111)

    friend bool operator==(const BackupOptions&, const BackupOptions&) = default;
};

inline constexpr std::string_view defaultBackupFolder = "MyCatData";
// How much of each edit is read.
inline constexpr std::size_t backupFolderLength = 80;
inline constexpr std::size_t backupDriveLength = 2;
// Below this the data still fits the floppy set the person may have meant.
inline constexpr std::uint64_t floppySizedData = 1400000;

// The backup folder's name from DefBkDir, "MyCatData" when unset.
[[nodiscard]] std::string backupFolderSetting(const Profile& profile);

// The entries the dialog opens with: the folder from DefBkDir ("MyCatData"
// when unset), the drive from CurrentDrive.
[[nodiscard]] BackupOptions openingBackupOptions(const Profile& profile);

// The texts the dialog shows once a choice is made.
namespace backupText {
inline constexpr std::string_view floppyWarning = "All files on the floppy disc(s) will be deleted";
inline constexpr std::string_view floppyPatience =
    "Sit back and relax, writing to floppy-discs is a slow process!";
inline constexpr std::string_view folderPrompt =
    "Enter below a name (one word) for the backup folder.\n Or use the default provided. EG:  "
    "MyCatData";
inline constexpr std::string_view drivePrompt =
    "Enter the drive letter to which you wish to backup\nJust a single letter eg:  C or some "
    "other drive letter.";
inline constexpr std::string_view folderInstruction =
    "Now enter the drive letter and a name for the folder in which you wish to store the "
    "backed-up data\nor use the defaults provided.";
} // namespace backupText

// The backup folder a drive and folder name stand for on this machine
// (ending in the separator), or nothing when the drive is not set up.
[[nodiscard]] std::optional<std::string>
backupFolderOf(const Drives& drives, std::string_view drive, std::string_view folder);

// The other way round: the drive letter and one-word folder name a backup
// folder stands for (C to Z, the floppy drives never), so a backup made
// elsewhere can be recorded as Backup My Data records its own; nothing when
// no drive's root holds it directly.
[[nodiscard]] std::optional<BackupOptions> driveAndFolderOf(const Drives& drives,
                                                            const std::string& backupFolder);

// The folder Backup My Data last backed up to, from CurrentDrive and
// DefBkDir; nothing before the first backup to a folder, or when its drive
// is not set up on this machine.
[[nodiscard]] std::optional<std::string> lastBackupFolder(const Drives& drives,
                                                          const Profile& profile);

// The checks behind OK, in order; the first that fails is the message to
// show, and the dialog stays open. A floppy drive typed as the other drive
// changes the entries: back to the floppy choice while the data would still
// fit on floppies, else the folder is emptied.
[[nodiscard]] std::optional<Message> checkBackupOptions(BackupOptions& entries,
                                                        std::uint64_t totalBytes,
                                                        const std::string& dataFolder,
                                                        const Drives& drives);

} // namespace purrlodge
