#include "housekeeping/FolderBackup.h"

#include <filesystem>
#include <system_error>
#include <vector>

#include "housekeeping/BackupProgress.h"
#include "housekeeping/BackupScan.h"
#include "ports/Ui.h"
#include "store/Windows1252.h"

namespace purrlodge {

namespace {

namespace fs = std::filesystem;

// Deletes the files of the old backup; false when the person cancelled.
bool deleteOldBackup(const std::string& backupFolder, BackupProgress& progress)
{
    const std::vector<std::string> oldFiles = filesInFolder(backupFolder);
    const fs::path folder = nativePath(backupFolder);
    int deleted = 0;
    for (const std::string& name : oldFiles) {
        std::error_code error;
        // One that cannot go is overwritten by the copy, or stays beside it.
        if (fs::remove(folder / nativePath(name), error))
            ++deleted;
        if (!progress.showProgress("Deleting old Backup data\n" + std::to_string(deleted) +
                                       " Old backup files deleted",
                                   deleted, static_cast<int>(oldFiles.size())))
            return false;
    }
    return true;
}

Message copyError(const std::string& name, const std::string& dataFolder,
                  const std::string& backupFolder)
{
    return {"Unable to copy \n\nFile " + name + " in Directory " + dataFolder + "\nto\nFile " +
                name + " in Directory " + backupFolder,
            "Copy Error"};
}

} // namespace

CopyResult backupToFolder(const std::string& dataFolder, const std::string& backupFolder, Ui& ui,
                          BackupProgress& progress)
{
    CopyResult result;
    if (!deleteOldBackup(backupFolder, progress)) {
        result.outcome = CopyOutcome::Cancelled;
        return result;
    }

    const std::vector<std::string> files = filesInFolder(dataFolder);
    const fs::path from = nativePath(dataFolder);
    const fs::path to = nativePath(backupFolder);
    const int total = static_cast<int>(files.size());
    for (const std::string& name : files) {
        const fs::path file = nativePath(name);
        std::error_code error;
        fs::copy_file(from / file, to / file, fs::copy_options::overwrite_existing, error);
        if (error) {
            ui.showMessage(copyError(name, dataFolder, backupFolder));
            result.outcome = CopyOutcome::Failed;
            return result;
        }
        ++result.filesCopied;
        const std::uintmax_t size = fs::file_size(to / file, error);
        if (!error)
            result.bytesCopied += size;
        if (!progress.showProgress("Copying " + std::to_string(result.filesCopied) + " Files",
                                   result.filesCopied, total) &&
            result.filesCopied < total) {
            result.outcome = CopyOutcome::Cancelled;
            return result;
        }
    }
    return result;
}

} // namespace purrlodge
