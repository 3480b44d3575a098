#include "housekeeping/BackupOptions.h"

#include <algorithm>
#include <filesystem>
#include <system_error>

#include "ports/Drives.h"
#include "ports/Profile.h"
#include "store/DataFolder.h"
#include "store/TextHelpers.h"
#include "store/Windows1252.h"

namespace purrlodge {

namespace {

// The folder without its final separators, in upper case, as two folders
// are compared.
std::string comparable(const std::string& folder)
{
    return toUpper(withoutTrailingSeparators(folder));
}

bool sameFolder(const std::string& a, const std::string& b)
{
    if (comparable(a) == comparable(b))
        return true;
    // The same folder reached through a link, or spelt in another case on a
    // file system that ignores case.
    std::error_code error;
    return std::filesystem::equivalent(nativePath(a), nativePath(b), error) && !error;
}

bool isFloppyLetter(char c)
{
    return c == 'A' || c == 'a' || c == 'B' || c == 'b';
}

Message driveNotSetUp(char letter)
{
    const std::string drive{toUpper(letter)};
    return {"Drive " + drive +
                ": is not set up on this computer.\nClick Browse to choose the folder "
                "that stands for drive " +
                drive + ":.",
            "Drive Not Set Up", MessageIcon::Exclamation};
}

} // namespace

std::string backupFolderSetting(const Profile& profile)
{
    std::string folder = profile.read("DefBkDir");
    return folder.empty() ? std::string(defaultBackupFolder) : folder;
}

BackupOptions openingBackupOptions(const Profile& profile)
{
    BackupOptions entries;
    entries.folder = backupFolderSetting(profile);
    entries.drive = profile.read("CurrentDrive");
    return entries;
}

std::optional<std::string> backupFolderOf(const Drives& drives, std::string_view drive,
                                          std::string_view folder)
{
    if (drive.empty())
        return std::nullopt;
    const std::optional<std::string> root = drives.rootOf(drive.front());
    if (!root)
        return std::nullopt;
    return withTrailingSeparator(*root + std::string(folder));
}

std::optional<BackupOptions> driveAndFolderOf(const Drives& drives, const std::string& backupFolder)
{
    const std::string folder = withoutTrailingSeparators(backupFolder);
    for (char letter = 'C'; letter <= 'Z'; ++letter) {
        const std::optional<std::string> root = drives.rootOf(letter);
        if (!root || !folder.starts_with(withTrailingSeparator(*root)))
            continue;
        const std::string name = folder.substr(withTrailingSeparator(*root).size());
        if (isPlainFileName(name))
            return BackupOptions{BackupMedium::OtherDrive, name, std::string(1, letter)};
    }
    return std::nullopt;
}

std::optional<std::string> lastBackupFolder(const Drives& drives, const Profile& profile)
{
    return backupFolderOf(drives, profile.read("CurrentDrive"), backupFolderSetting(profile));
}

std::optional<Message> checkBackupOptions(BackupOptions& entries, std::uint64_t totalBytes,
                                          const std::string& dataFolder, const Drives& drives)
{
    if (entries.medium == BackupMedium::None)
        return Message{"You must select one or other of the options", "Buttone not clicked"};
    if (entries.medium == BackupMedium::Floppy) {
        if (!drives.rootOf('A'))
            return driveNotSetUp('A');
        return std::nullopt;
    }

    entries.folder.resize(std::min(entries.folder.size(), backupFolderLength));
    entries.drive.resize(std::min(entries.drive.size(), backupDriveLength));
    const std::string folder = entries.folder;
    const std::string drive = entries.drive;
    if (folder.empty())
        return Message{" You have not entered a Folder name", "Folder Error",
                       MessageIcon::Exclamation};
    if (drive.empty())
        return Message{"You have not entered a Drive Letter!", "Data Omission"};
    if (drive.size() >= 2)
        return Message{"You seem to have entered more than one letter for your backup "
                       "drive.\nThat is impossible!",
                       "Drive Error"};
    const std::optional<std::string> target = backupFolderOf(drives, drive, folder);
    if (target && sameFolder(*target, dataFolder))
        return Message{"You can not backup to your Source Directory!", "Silly Error",
                       MessageIcon::Exclamation};
    if (isFloppyLetter(drive.front())) {
        if (totalBytes < floppySizedData)
            entries.medium = BackupMedium::Floppy;
        else
            entries.folder.clear();
        return Message{"You seem to have provided the address of your Floppy Drive (drive " +
                           drive + ")\nTo backup to floppy click the floppy option!",
                       "Wrong Button"};
    }
    // One word: a name with a separator or ".." would reach outside the drive.
    if (!isPlainFileName(folder) || folder == ".")
        return Message{"Please enter a name of one word for the backup folder, without \\, / "
                       "or \"..\".",
                       "Folder Error", MessageIcon::Exclamation};
    if (!target)
        return driveNotSetUp(drive.front());
    return std::nullopt;
}

} // namespace purrlodge
