#pragma once

#include <cstdint>
#include <string>
#include <vector>

#include "housekeeping/FolderBackup.h"

namespace purrlodge {

class BackupProgress;
class DataFolder;
class Drives;

// Below this a floppy disc is taken to be faulty.
inline constexpr std::uint64_t fullFloppyBytes = 1440000;

// The text of Bad Floppy! (DIALOG 49) for a disc with `freeBytes` free.
[[nodiscard]] std::string badFloppyText(std::uint64_t freeBytes);

// The question asked of the person while discs are changed.
class FloppyDiscQuestions {
public:
    virtual ~FloppyDiscQuestions() = default;

    // Bad Floppy! (DIALOG 49) showing `text`: true once the person says a new
    // disc is in, false to give up.
    virtual bool askForNewFloppy(const std::string& text) = 0;
};

// The backup to the floppy set in drive A:, each disc's files in its folder
// "BACKUP". `discNumber` counts the discs asked for in this run and goes on
// counting from one backup to the next. A disc is cleared only when drive
// A's folder is a disc of its own; otherwise the person is told and nothing
// is deleted.
[[nodiscard]] CopyResult backupToFloppies(const DataFolder& folder,
                                          const std::vector<std::string>& backupList,
                                          const Drives& drives, FloppyDiscQuestions& questions,
                                          BackupProgress& progress, int& discNumber);

} // namespace purrlodge
