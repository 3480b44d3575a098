#pragma once

#include <cstddef>
#include <cstdint>
#include <filesystem>
#include <fstream>
#include <optional>
#include <set>
#include <string>
#include <string_view>
#include <utility>
#include <vector>

namespace purrlodge {

class Ui;

// Folder names end in this platform's separator; '/' is taken as one too.
inline constexpr char folderSeparator =
    static_cast<char>(std::filesystem::path::preferred_separator);
[[nodiscard]] bool isFolderSeparator(char c);
// The folder name with a separator at its end (an empty name stays empty).
[[nodiscard]] std::string withTrailingSeparator(std::string folder);
// The folder name without separators at its end; a root folder keeps its one.
[[nodiscard]] std::string withoutTrailingSeparators(std::string folder);

// Whether a file of `fileSize` bytes is far longer (more than twice as long)
// than the block it holds, and so damaged; only the block is ever read.
[[nodiscard]] bool isFarLongerThanBlock(std::uintmax_t fileSize, std::size_t blockSize);

// Whether a name can only ever mean a file inside the data folder: not empty,
// no separator, no "..", no control character.
[[nodiscard]] bool isPlainFileName(std::string_view name);

// The one folder that holds a data set. Every file name is the folder (which
// ends in the separator) followed directly by the file's own name. Blocks are
// read and written whole. A name that is not a plain file name is never
// opened: a read gives zeros and a write is refused as a file error.
class DataFolder {
public:
    // folder must end in the native separator; ui hears of failed writes.
    DataFolder(std::string folder, Ui& ui);

    [[nodiscard]] const std::string& path() const { return folder_; }
    void setPath(std::string folder) { folder_ = std::move(folder); }
    [[nodiscard]] std::string fileName(std::string_view name) const;
    // Where the folder tells the person of the files it could not write.
    [[nodiscard]] Ui& ui() const { return ui_; }

    // Clears the block, then reads what the file holds: a missing or short file
    // leaves zeros, and only the block's size is ever read. A file more than
    // twice as long as its block is damaged: the person is told so once per
    // file and run. Returns whether the file could be opened and read.
    bool readBytes(std::string_view name, void* block, std::size_t size) const;

    // The file opened for reading in binary; not open when it cannot be, or
    // when the name is not a plain file name.
    [[nodiscard]] std::ifstream openForReading(std::string_view name) const;

    // Writes the block crash-safely: a temporary file beside the target, flushed
    // and renamed over it. A longer existing file keeps its tail, as writing
    // without truncation would. A failure (a write-protected file among them)
    // is told to the person ("File Error") and the old file stays as it was.
    // Returns whether the write succeeded.
    [[nodiscard]] bool writeBytes(std::string_view name, const void* block, std::size_t size) const;

    // The same, but the file holds the block and nothing more afterwards: for
    // a repaired file whose damaged copy has been kept.
    [[nodiscard]] bool replaceBytes(std::string_view name, const void* block,
                                    std::size_t size) const;

    template <class Block> bool read(std::string_view name, Block& block) const
    {
        return readBytes(name, &block, sizeof(Block));
    }

    template <class Block> [[nodiscard]] bool write(std::string_view name, const Block& block) const
    {
        return writeBytes(name, &block, sizeof(Block));
    }

    [[nodiscard]] bool exists(std::string_view name) const;

    // Whether a file of that name exists, the name compared without regard to
    // case, for data sets that came from a case-blind file system.
    [[nodiscard]] bool existsIgnoringCase(std::string_view name) const;

    bool remove(std::string_view name) const;
    // The names of the folder's files whose name ends in `extension`, compared
    // without regard to case, in file-name order.
    [[nodiscard]] std::vector<std::string> namesWithExtension(std::string_view extension) const;
    // The names of the folder's files whose name begins with `stem` and a dot
    // ("<stem>.*"), the stem compared without regard to case.
    [[nodiscard]] std::vector<std::string> namesWithStem(std::string_view stem) const;

    // The size of the file in bytes; nothing when there is no such file.
    [[nodiscard]] std::optional<std::uintmax_t> fileSize(std::string_view name) const;

    // Copies the file, as it stands, to the first free name of "<stem>.BAD",
    // "<stem>1.BAD" ... "<stem>99.BAD" (stem: the name before its dot), so a
    // damaged file is kept before it is repaired. Returns the copy's name, or
    // nothing when no copy could be made.
    [[nodiscard]] std::optional<std::string> keepDamagedCopy(std::string_view name) const;

    // Removes the temporary files that a crash in the middle of a write left
    // behind; the files they were to replace are whole. Returns their names.
    std::vector<std::string> removeLeftoverTemporaryFiles() const;

private:
    bool writeWhole(std::string_view name, const void* block, std::size_t size,
                    bool keepTail) const;
    void reportOversized(std::string_view name, std::uintmax_t fileSize,
                         std::size_t blockSize) const;

    std::string folder_;
    Ui& ui_;
    // Files already reported as far too long, so each is told once a run.
    mutable std::set<std::string, std::less<>> reportedOversized_;
};

} // namespace purrlodge
