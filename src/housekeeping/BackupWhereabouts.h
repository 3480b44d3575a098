#pragma once

#include <cstdint>
#include <string>

namespace purrlodge {

class Clock;
class Drives;
class Profile;

// The three texts of Where is my Stuff? (DIALOG 68), and a fourth with the
// folders as this computer names them: the first two are in capitals and the
// backup under its drive letter.
struct StuffWhereabouts {
    std::string dataFolder;
    std::string backupFolder;
    std::string programFolder;
    std::string onThisComputer;
};

[[nodiscard]] StuffWhereabouts stuffWhereabouts(const std::string& dataFolder,
                                                const Profile& profile, const Drives& drives,
                                                const std::string& programFolder);

// The backup folder as the person knows it: "C:\MyCatData" from CurrentDrive
// and DefBkDir.
[[nodiscard]] std::string backupFolderName(const Profile& profile);

// Show Last Backup (DIALOG 44): when and where the last backup went, from
// LastBkDate.
[[nodiscard]] std::string lastBackupText(const Profile& profile, const Clock& clock);

// The LastBkDate setting: seconds since 1970, 0 when there has been no backup.
[[nodiscard]] std::int64_t lastBackupTime(const Profile& profile);

} // namespace purrlodge
