#include <algorithm>
#include <filesystem>
#include <numeric>

#include "app/Session.h"
#include "app/jobs/UnattendedJobs.h"
#include "housekeeping/BackupOptions.h"
#include "housekeeping/BackupProgress.h"
#include "housekeeping/BackupScan.h"
#include "housekeeping/FolderBackup.h"
#include "store/ClientFiles.h"
#include "store/FolderTools.h"
#include "store/TextHelpers.h"
#include "store/Windows1252.h"

namespace purrlodge {

namespace {

namespace fs = std::filesystem;

// Progress as lines on standard error: a line now and then, never a cancel.
class ProgressLines : public BackupProgress {
public:
    explicit ProgressLines(const JobOutput& output) : output_(output) {}

    bool showProgress(const std::string& text, int done, int total) override
    {
        if (done == total || done % 100 == 0) {
            std::string line = text;
            std::replace(line.begin(), line.end(), '\n', ' ');
            output_.progress(line + " (" + std::to_string(done) + " of " + std::to_string(total) +
                             ")");
        }
        return true;
    }
    void endProgress() override {}

private:
    const JobOutput& output_;
};

// The folder as an absolute path ending in the separator.
std::string absoluteFolder(const std::string& folder)
{
    std::error_code error;
    const fs::path absolute = fs::absolute(nativePath(folder), error);
    return withTrailingSeparator(error ? folder : windows1252Of(absolute.lexically_normal()));
}

bool isWithin(const std::string& folder, const std::string& outer)
{
    std::error_code error;
    const fs::path inner = fs::weakly_canonical(nativePath(folder), error);
    const fs::path base = fs::weakly_canonical(nativePath(outer), error);
    if (error)
        return false;
    const auto [end, rest] = std::mismatch(base.begin(), base.end(), inner.begin(), inner.end());
    // A trailing separator leaves an empty last element in the base.
    return end == base.end() || (std::next(end) == base.end() && end->empty());
}

// The free bytes where the folder is or will be made: on its nearest
// existing parent.
std::optional<std::uint64_t> freeBytesFor(const Drives& drives, const std::string& folder)
{
    fs::path existing = nativePath(folder);
    std::error_code error;
    while (!existing.empty() && !fs::exists(existing, error) && existing != existing.parent_path())
        existing = existing.parent_path();
    return drives.freeBytes(windows1252Of(existing));
}

JobOutcome failed(std::string message)
{
    return {jobExit::failed, std::move(message)};
}

} // namespace

JobOutcome runBackupJob(Session& session, const JobRequest& request, const JobOutput& output)
{
    std::string target;
    if (!request.backupFolder.empty()) {
        target = absoluteFolder(request.backupFolder);
    } else if (const std::optional<std::string> last =
                   lastBackupFolder(session.ports.drives, session.ports.profile)) {
        target = *last;
    } else {
        return {jobExit::usage, "no backup has been made to a folder yet: give --to FOLDER"};
    }
    const std::string& data = session.folder.path();
    if (isWithin(target, data) || isWithin(data, target))
        return {jobExit::usage,
                "the backup folder " + target +
                    " and the data folder must lie apart, neither inside the other"};

    const std::vector<std::string> present = filesInFolder(target);
    if (!present.empty() && !holdsIndexFile(present))
        return failed(target + " holds " + std::to_string(present.size()) +
                      (present.size() == 1 ? " file" : " files") +
                      " but no client list, so it is not a former backup and is not "
                      "cleared: choose an empty folder or a former backup");

    const BackupScan scan = scanForBackup(session.folder, session.index);
    const std::optional<std::uint64_t> free = freeBytesFor(session.ports.drives, target);
    // The old backup's files make room as they are deleted.
    if (free && *free + bytesOfFiles(target, present) < scan.totalBytes)
        return {jobExit::noRoom, "the backup needs " + std::to_string(scan.totalBytes) +
                                     " bytes, but only " + std::to_string(*free) +
                                     " are free for " + target + "; nothing was deleted"};

    makeFolderChain(target);
    std::error_code error;
    if (!fs::is_directory(nativePath(target), error))
        return failed("the backup folder " + target + " could not be made");

    output.progress("Backing up " + std::to_string(scan.fileCount) + " files (" +
                    std::to_string(scan.totalBytes) + " bytes) to " + target);
    ProgressLines progress(output);
    const CopyResult result = backupToFolder(data, target, session.ports.ui, progress);
    if (result.outcome != CopyOutcome::Done)
        return failed("the backup to " + target + " stopped after " +
                      std::to_string(result.filesCopied) + " of " + std::to_string(scan.fileCount) +
                      " files; the date of the last backup is unchanged");
    // Recorded as Backup My Data records its own where a drive letter can
    // name the folder, so Show Last Backup and Restore know of it.
    Profile& profile = session.ports.profile;
    if (const std::optional<BackupOptions> place = driveAndFolderOf(session.ports.drives, target);
        place &&
        (!profile.write("CurrentDrive", place->drive) || !profile.write("DefBkDir", place->folder)))
        return failed("the backup to " + target +
                      " is complete, but where it went could not be saved in the settings");
    if (!profile.write("LastBkDate", std::to_string(session.ports.clock.now())))
        return failed("the backup to " + target +
                      " is complete, but the date of the last backup could not be saved");
    output.result(std::to_string(result.filesCopied) + " files backed up to " + target +
                  " (total " + std::to_string(result.bytesCopied) + " bytes)");
    return {};
}

} // namespace purrlodge
