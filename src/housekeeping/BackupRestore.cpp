#include "housekeeping/BackupRestore.h"

#include <cerrno>
#include <cstdio>
#include <filesystem>
#include <system_error>
#include <vector>

#ifdef __linux__
#include <fcntl.h>
#include <stdio.h>
#endif

#include "housekeeping/BackupProgress.h"
#include "housekeeping/BackupScan.h"
#include "ports/Ui.h"
#include "store/ClientFiles.h"
#include "store/DataFolder.h"
#include "store/TextHelpers.h"
#include "store/Windows1252.h"

namespace purrlodge {

namespace {

namespace fs = std::filesystem;

constexpr std::string_view programFile = "PURRLODGE.EXE";

// Swaps two folders in one step where the system can, so a crash leaves one
// whole data folder or the other; elsewhere by two renames.
bool swapFolders(const fs::path& a, const fs::path& b, std::error_code& error)
{
#ifdef __linux__
    if (::renameat2(AT_FDCWD, a.c_str(), AT_FDCWD, b.c_str(), RENAME_EXCHANGE) == 0)
        return true;
    if (errno != EINVAL && errno != ENOSYS) {
        error.assign(errno, std::generic_category());
        return false;
    }
#endif
    fs::path aside = b;
    aside += ".previous~";
    fs::rename(b, aside, error);
    if (error)
        return false;
    fs::rename(a, b, error);
    if (error) {
        std::error_code ignored;
        fs::rename(aside, b, ignored);
        return false;
    }
    fs::rename(aside, a, error);
    return true;
}

// The data folder's sub-folders are not part of a backup: they stay with the
// data folder.
void moveSubFolders(const fs::path& from, const fs::path& to)
{
    std::error_code error;
    std::vector<fs::path> folders;
    for (fs::directory_iterator it(from, error), end; !error && it != end; it.increment(error)) {
        std::error_code statusError;
        if (it->symlink_status(statusError).type() == fs::file_type::directory)
            folders.push_back(it->path());
    }
    for (const fs::path& folder : folders) {
        std::error_code ignored;
        fs::rename(folder, to / folder.filename(), ignored);
    }
}

Message unchanged(const std::string& why)
{
    return {why + "\n\nYour data folder has not been changed.", "Restore Failed",
            MessageIcon::Exclamation};
}

} // namespace

std::string restoreWorkFolder(const std::string& dataFolder)
{
    return withoutTrailingSeparators(dataFolder) + ".restoring~";
}

RestoreResult restoreFromBackup(const std::string& backupFolder, const std::string& dataFolder,
                                Ui& ui, BackupProgress& progress)
{
    RestoreResult result;
    const std::vector<std::string> files = filesInFolder(backupFolder);
    if (!holdsIndexFile(files)) {
        ui.showMessage({"There is no backup of a Purrlodge data set in the folder\n   " +
                            backupFolder + "\n\nYour data folder has not been changed.",
                        "No Backup Found", MessageIcon::Exclamation});
        result.outcome = RestoreOutcome::NoBackup;
        return result;
    }

    const fs::path data = nativePath(withoutTrailingSeparators(dataFolder));
    const fs::path work = nativePath(restoreWorkFolder(dataFolder));
    std::error_code error;
    fs::remove_all(work, error); // what an earlier restore left behind
    if (!fs::create_directory(work, error) || error) {
        ui.showMessage(unchanged("The restored data is put together in the folder\n   " +
                                 windows1252Of(work) +
                                 "\nwhich could not be made: " + error.message() + "."));
        result.outcome = RestoreOutcome::Failed;
        return result;
    }
    fs::permissions(work, fs::status(data, error).permissions(), error);

    const auto giveUp = [&](RestoreOutcome outcome) {
        std::error_code ignored;
        fs::remove_all(work, ignored);
        result.outcome = outcome;
        result.filesCopied = 0;
        return result;
    };
    const fs::path from = nativePath(backupFolder);
    const int total = static_cast<int>(files.size());
    int done = 0;
    for (const std::string& name : files) {
        ++done;
        if (toUpper(name) == programFile)
            continue;
        const fs::path file = nativePath(name);
        fs::copy_file(from / file, work / file, fs::copy_options::overwrite_existing, error);
        if (error) {
            ui.showMessage(unchanged("The file " + name +
                                     " could not be copied from the backup "
                                     "folder\n   " +
                                     backupFolder + "\n(" + error.message() + ")."));
            return giveUp(RestoreOutcome::Failed);
        }
        ++result.filesCopied;
        if (!progress.showProgress("Restoring " + std::to_string(result.filesCopied) + " Files",
                                   done, total) &&
            done < total) {
            ui.showMessage({"The restore was cancelled.\n\nYour data folder has not been changed.",
                            "Restore Cancelled"});
            return giveUp(RestoreOutcome::Cancelled);
        }
    }

    if (!swapFolders(work, data, error)) {
        ui.showMessage(unchanged("The restored data could not take the data folder's place (" +
                                 error.message() + ")."));
        return giveUp(RestoreOutcome::Failed);
    }
    // The old data now sits in the work folder.
    moveSubFolders(work, data);
    std::error_code ignored;
    fs::remove_all(work, ignored);
    return result;
}

} // namespace purrlodge
