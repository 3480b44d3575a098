#pragma once

#include <cstdint>
#include <string>
#include <vector>

namespace purrlodge {

class DataFolder;
struct ClientIndex;

// What a backup has to copy, taken when Backup My Data starts.
struct BackupScan {
    int fileCount = 0;            // every file in the data folder
    std::uint64_t totalBytes = 0; // their sizes added up
    // The files a floppy set takes, in order: the cattery's own files, then
    // each current client's files in index order; only files that can be read.
    std::vector<std::string> backupList;
};

[[nodiscard]] BackupScan scanForBackup(const DataFolder& folder, const ClientIndex& index);

// A floppy disc takes 1300000 bytes of data: one disc more than the whole
// discs the data fills.
[[nodiscard]] int floppyDiscsNeeded(std::uint64_t totalBytes);
// About 2.3 seconds a file, in whole minutes.
[[nodiscard]] int backupMinutes(std::size_t listLength);

// The two lines Backup Options opens with.
[[nodiscard]] std::string dataFilesText(const BackupScan& scan);
[[nodiscard]] std::string backupEstimateText(const BackupScan& scan);

// Whether a list of file names holds the client index, whatever the case of
// its name: the mark of a backup's own folder.
[[nodiscard]] bool holdsIndexFile(const std::vector<std::string>& names);

// The regular files of a folder (sub-folders are never part of a backup), in
// file-name order.
[[nodiscard]] std::vector<std::string> filesInFolder(const std::string& folder);

// The sizes of the named files of a folder added up; a file that cannot be
// measured counts nothing.
[[nodiscard]] std::uint64_t bytesOfFiles(const std::string& folder,
                                         const std::vector<std::string>& names);

} // namespace purrlodge
