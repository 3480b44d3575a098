#pragma once

#include <string>

namespace purrlodge {

class BackupProgress;
class Ui;

enum class RestoreOutcome {
    Restored, // the data folder now holds the backup
    NoBackup, // the folder holds no backup; nothing changed
    Failed,   // a file could not be copied or the folders not swapped; nothing changed
    Cancelled // the person cancelled; nothing changed
};

struct RestoreResult {
    RestoreOutcome outcome = RestoreOutcome::Restored;
    int filesCopied = 0;
};

// Puts the backup in `backupFolder` back in place of the data folder. The
// backup's files (never the program file, whatever the case of its name) are
// copied under their own names into a new folder beside the data folder,
// which takes the data folder's place only once every file is there; the
// data folder's own sub-folders move across. Anything short of that leaves
// the data folder exactly as it was, and the person is told why.
[[nodiscard]] RestoreResult restoreFromBackup(const std::string& backupFolder,
                                              const std::string& dataFolder, Ui& ui,
                                              BackupProgress& progress);

// The folder a restore is built in: beside the data folder, named after it.
[[nodiscard]] std::string restoreWorkFolder(const std::string& dataFolder);

} // namespace purrlodge
