#include "housekeeping/BackupScan.h"

#include <algorithm>
#include <filesystem>
#include <fstream>
#include <string_view>
#include <system_error>

#include "accounts/CatteryFiles.h"
#include "store/ClientCode.h"
#include "store/ClientFiles.h"
#include "store/ClientIndex.h"
#include "store/DataFolder.h"
#include "store/TextHelpers.h"
#include "store/Windows1252.h"

namespace purrlodge {

namespace {

namespace fs = std::filesystem;

constexpr std::uint64_t bytesPerFloppy = 1300000;

constexpr std::string_view clientExtensions[] = {extension::clientRecord, extension::accountBook,
                                                 extension::stayRecord, extension::noteBook};

void addWhenReadable(const DataFolder& folder, std::string name, std::vector<std::string>& list)
{
    if (folder.openForReading(name).is_open())
        list.push_back(std::move(name));
}

} // namespace

std::vector<std::string> filesInFolder(const std::string& folder)
{
    std::vector<std::string> names;
    std::error_code error;
    for (fs::directory_iterator it(nativePath(folder), error), end; !error && it != end;
         it.increment(error)) {
        std::error_code statusError;
        if (it->is_regular_file(statusError))
            names.push_back(windows1252Of(it->path().filename()));
    }
    std::sort(names.begin(), names.end());
    return names;
}

std::uint64_t bytesOfFiles(const std::string& folder, const std::vector<std::string>& names)
{
    std::uint64_t total = 0;
    for (const std::string& name : names) {
        std::error_code error;
        const std::uintmax_t size = fs::file_size(nativePath(folder + name), error);
        if (!error)
            total += size;
    }
    return total;
}

bool holdsIndexFile(const std::vector<std::string>& names)
{
    return std::any_of(names.begin(), names.end(),
                       [](const std::string& name) { return toUpper(name) == currentIndexFile; });
}

BackupScan scanForBackup(const DataFolder& folder, const ClientIndex& index)
{
    BackupScan scan;
    const std::vector<std::string> files = filesInFolder(folder.path());
    scan.fileCount = static_cast<int>(files.size());
    scan.totalBytes = bytesOfFiles(folder.path(), files);
    for (const std::string_view name :
         {establishmentFile, currentIndexFile, ratesFile, exchangeRateFile})
        addWhenReadable(folder, std::string(name), scan.backupList);
    for (int entry = 1; entry <= index.usedCount(); ++entry) {
        const std::string code = index.entries[entry].code.str();
        if (!isSafeClientCode(code))
            continue;
        for (const std::string_view ext : clientExtensions)
            addWhenReadable(folder, clientFileName(code, ext), scan.backupList);
    }
    return scan;
}

int floppyDiscsNeeded(std::uint64_t totalBytes)
{
    return static_cast<int>(totalBytes / bytesPerFloppy) + 1;
}

int backupMinutes(std::size_t listLength)
{
    // In tenths of a second, so the truncation is exact: 26 files are 59.8 s.
    return static_cast<int>(listLength * 23 / 600);
}

std::string dataFilesText(const BackupScan& scan)
{
    return "You have " + std::to_string(scan.fileCount) + " Data Files totalling " +
           std::to_string(scan.totalBytes) + " Bytes.";
}

std::string backupEstimateText(const BackupScan& scan)
{
    return "If you decide to backp to floppies you will need " +
           std::to_string(floppyDiscsNeeded(scan.totalBytes)) +
           " discs.  The estimated backup time is about " +
           std::to_string(backupMinutes(scan.backupList.size())) + " mins";
}

} // namespace purrlodge
