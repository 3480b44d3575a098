#include "housekeeping/BackupWhereabouts.h"

#include <cstdlib>
#include <optional>

#include "housekeeping/BackupOptions.h"
#include "ports/Profile.h"
#include "store/Dates.h"
#include "store/TextHelpers.h"

namespace purrlodge {

std::string backupFolderName(const Profile& profile)
{
    return profile.read("CurrentDrive") + ":\\" + backupFolderSetting(profile);
}

StuffWhereabouts stuffWhereabouts(const std::string& dataFolder, const Profile& profile,
                                  const Drives& drives, const std::string& programFolder)
{
    StuffWhereabouts where;
    where.dataFolder = "Your active data is currently in folder:\n   " + toUpper(dataFolder);
    where.backupFolder =
        "Your Backup data is currently in folder:\n    " +
        toUpper(profile.read("CurrentDrive") + "\\:" + backupFolderSetting(profile));
    where.programFolder = "Your active Purrlodge program is in folder:\n    " + programFolder;
    const std::string drive = profile.read("CurrentDrive");
    const std::optional<std::string> backup =
        backupFolderOf(drives, drive, backupFolderSetting(profile));
    where.onThisComputer =
        "On this computer your data is in " + dataFolder + "\nand " +
        (backup ? "your backup in " + *backup
                : std::string("the backup drive ") + (drive.empty() ? "" : drive + ": ") +
                      "is not set up yet") +
        ".";
    return where;
}

std::int64_t lastBackupTime(const Profile& profile)
{
    return std::strtoll(profile.read("LastBkDate").c_str(), nullptr, 10);
}

std::string lastBackupText(const Profile& profile, const Clock& clock)
{
    const std::int64_t last = lastBackupTime(profile);
    if (last == 0)
        return "    You Have No Data Backed Up!";
    return "Last Backup was to folder     '" + backupFolderName(profile) + "'\n     at " +
           timeOfDayText(last, clock) + " on " + longDate(last, clock);
}

} // namespace purrlodge
