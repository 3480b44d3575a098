#pragma once

#include <cstddef>
#include <filesystem>
#include <string>
#include <string_view>
#include <utility>

namespace purrlodge {

class Ui;

// Folder names end in this platform's separator; '/' is taken as one too.
inline constexpr char folderSeparator =
    static_cast<char>(std::filesystem::path::preferred_separator);
[[nodiscard]] bool isFolderSeparator(char c);
// The folder name with a separator at its end (an empty name stays empty).
[[nodiscard]] std::string withTrailingSeparator(std::string folder);

// The one folder that holds a data set. Every file name is the folder (which
// ends in the separator) followed directly by the file's own name. Blocks are
// read and written whole.
class DataFolder {
public:
    // folder must end in the native separator; ui hears of failed writes.
    DataFolder(std::string folder, Ui& ui);

    [[nodiscard]] const std::string& path() const { return folder_; }
    void setPath(std::string folder) { folder_ = std::move(folder); }
    [[nodiscard]] std::string fileName(std::string_view name) const;

    // Clears the block, then reads what the file holds: a missing or short file
    // leaves zeros. Returns whether the file could be opened and read.
    bool readBytes(std::string_view name, void* block, std::size_t size) const;

    // Writes the block crash-safely: a temporary file beside the target, flushed
    // and renamed over it. A longer existing file keeps its tail, as writing
    // without truncation would. A failure is told to the person ("File Error")
    // and the old file stays as it was. Returns whether the write succeeded.
    [[nodiscard]] bool writeBytes(std::string_view name, const void* block, std::size_t size) const;

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

private:
    std::string folder_;
    Ui& ui_;
};

} // namespace purrlodge
