#include "housekeeping/FloppyBackup.h"

#include <cstdio>
#include <filesystem>
#include <optional>
#include <system_error>

#include "housekeeping/BackupProgress.h"
#include "ports/Drives.h"
#include "ports/Ui.h"
#include "store/DataFolder.h"
#include "store/FolderTools.h"
#include "store/Windows1252.h"

namespace purrlodge {

namespace {

namespace fs = std::filesystem;

// The cattery's own files head the list; the clients' files follow.
constexpr std::size_t catteryFileCount = 4;

class FloppySet {
public:
    FloppySet(const DataFolder& folder, const std::string& root, const Drives& drives,
              FloppyDiscQuestions& questions, BackupProgress& progress, int& discNumber)
        : folder_(folder), root_(root), drives_(drives), questions_(questions), progress_(progress),
          discNumber_(discNumber)
    {}

    [[nodiscard]] std::string backupFolder() const { return root_ + "BACKUP" + folderSeparator; }

    std::uint64_t freeSpace() const { return drives_.freeBytes(root_).value_or(0); }

    // Asks for the next disc, checks it and clears it; false when no usable
    // disc was given.
    bool takeNewDisc()
    {
        ++discNumber_;
        const std::string number = std::to_string(discNumber_);
        ui().showMessage({"Please insert disc number-" + number, "Backup Disc Number"});
        for (std::uint64_t free = freeSpace(); free < fullFloppyBytes; free = freeSpace()) {
            if (!questions_.askForNewFloppy(badFloppyText(free))) {
                progress_.showProgress("Faulty Disc!  Please insert new disc", 0, 0);
                return false;
            }
        }
        if (!drives_.isOwnMount(root_)) {
            ui().showMessage(
                {"The folder that stands for drive A: (" + root_ +
                     ") is not a disc of its own, so Purrlodge has not deleted anything on "
                     "it.\nPlease insert a floppy disc or memory stick and choose its folder for "
                     "drive A: with the Browse button.",
                 "Not a Removable Disc", MessageIcon::Exclamation});
            return false;
        }
        progress_.showProgress("Deleting all files on disc " + number +
                                   "\nPurrlodge is testing floppy disc Number-" + number +
                                   " and deleting all files.\nPlease be patient - this takes "
                                   "time!\nPlease be patient while files are being deleted",
                               0, 0);
        deleteFolderContents(ui(), root_, true, false);
        makeFolderChain(backupFolder());
        progress_.showProgress("Purrlodge is now backingup data-files to disc number-" + number, 0,
                               0);
        return true;
    }

    // Copies one file, first asking for a new disc when it would not fit with
    // room to spare. A file that cannot be copied is passed over.
    std::optional<CopyOutcome> copy(const std::string& name, CopyResult& result)
    {
        const std::uint64_t size = folder_.fileSize(name).value_or(0);
        if (size + size / 2 > freeSpace() && !takeNewDisc())
            return CopyOutcome::Abandoned;
        std::error_code error;
        const fs::path target = nativePath(backupFolder() + name);
        fs::copy_file(nativePath(folder_.fileName(name)), target,
                      fs::copy_options::overwrite_existing, error);
        if (!error) {
            ++result.filesCopied;
            result.bytesCopied += size;
        }
        return std::nullopt;
    }

private:
    Ui& ui() const { return folder_.ui(); }

    const DataFolder& folder_;
    std::string root_;
    const Drives& drives_;
    FloppyDiscQuestions& questions_;
    BackupProgress& progress_;
    int& discNumber_;
};

} // namespace

std::string badFloppyText(std::uint64_t freeBytes)
{
    char megabytes[32];
    std::snprintf(megabytes, sizeof megabytes, "%.3f",
                  static_cast<double>(freeBytes) / (1024.0 * 1024.0));
    return "Your floppy disc seems to have surface errors. It should have 1.44 MB of free space "
           "but only has " +
           std::string(megabytes) +
           " MB.  You can not use this disc so please insert a new Floppy Disc!";
}

CopyResult backupToFloppies(const DataFolder& folder, const std::vector<std::string>& backupList,
                            const Drives& drives, FloppyDiscQuestions& questions,
                            BackupProgress& progress, int& discNumber)
{
    CopyResult result;
    const std::optional<std::string> root = drives.rootOf('A');
    FloppySet set(folder, root.value_or(""), drives, questions, progress, discNumber);
    if (!root || !set.takeNewDisc()) {
        result.outcome = CopyOutcome::Abandoned;
        return result;
    }
    const int total = static_cast<int>(backupList.size());
    for (std::size_t i = 0; i < backupList.size(); ++i) {
        const std::string status = i < catteryFileCount ? "Copying Files" : "Copy Progress";
        if (const std::optional<CopyOutcome> stop = set.copy(backupList[i], result)) {
            result.outcome = *stop;
            return result;
        }
        if (!progress.showProgress(status, static_cast<int>(i + 1), total) &&
            static_cast<int>(i + 1) < total) {
            result.outcome = CopyOutcome::Cancelled;
            return result;
        }
    }
    return result;
}

} // namespace purrlodge
