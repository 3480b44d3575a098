#pragma once

#include <cstdint>
#include <string>

namespace purrlodge {

class BackupProgress;
class Ui;

// How a copy of the data set ended.
enum class CopyOutcome {
    Done,      // every file copied
    Failed,    // a file could not be copied; the person has been told which
    Cancelled, // the person cancelled between two files
    Abandoned  // no usable disc was given for the floppy set
};

struct CopyResult {
    CopyOutcome outcome = CopyOutcome::Done;
    int filesCopied = 0;
    std::uint64_t bytesCopied = 0;
};

// The backup to a folder: first the files the backup folder holds are
// deleted (only files: sub-folders and everything outside stay), then every
// file of the data folder is copied there under its own name. A file that
// cannot be copied is told ("Copy Error") and ends the copy; the files
// already copied stay.
[[nodiscard]] CopyResult backupToFolder(const std::string& dataFolder,
                                        const std::string& backupFolder, Ui& ui,
                                        BackupProgress& progress);

} // namespace purrlodge
