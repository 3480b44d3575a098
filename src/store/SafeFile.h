#pragma once

#include <cstdio>
#include <filesystem>
#include <string>
#include <string_view>
#include <system_error>

namespace purrlodge {

// The operations replaceFileContents does on its temporary file, on the real
// disc; a test derives from it to make one of them fail. Each failure is
// returned in `error`.
class FileOperations {
public:
    virtual ~FileOperations() = default;

    // Opens a file for writing, made new or emptied; nullptr when it cannot be.
    virtual std::FILE* open(const std::filesystem::path& file, std::error_code& error);

    // Writes the bytes and returns how many were written: fewer only on failure.
    virtual std::size_t write(std::FILE* stream, std::string_view bytes, std::error_code& error);

    // Pushes what was written past every cache to the disc itself.
    virtual bool flushToDisc(std::FILE* stream, std::error_code& error);

    // Closes the file, which is then closed even when this fails.
    virtual bool close(std::FILE* stream, std::error_code& error);

    // Renames `from` to `to`, replacing any file called `to`.
    virtual bool rename(const std::filesystem::path& from, const std::filesystem::path& to,
                        std::error_code& error);

    // Removes the file if it is there.
    virtual void remove(const std::filesystem::path& file);

    // Whether an existing file may be replaced: false, with the reason, when
    // it is write-protected. Its permission bits are asked as well as the
    // system, which lets the superuser past any protection.
    virtual bool mayReplace(const std::filesystem::path& file, std::error_code& error);
};

// What happens to the bytes of an existing file beyond the new contents.
enum class OldTail {
    Drop, // the file holds the new bytes and nothing else
    Keep, // a longer file keeps its bytes past the new ones, as a write in place would
};

// Replaces a file's whole contents so that a crash leaves either the old file
// or the new one, never a torn one: the bytes go to a temporary file beside
// it, are flushed to disc and renamed over it. A symbolic link is written
// through, and the old file's permissions are kept. A write-protected file is
// not replaced. A kept tail is copied a piece at a time, so a huge file costs
// no more memory than a small one. On failure the old file is untouched, the
// temporary file is gone and `reason` says why.
[[nodiscard]] bool replaceFileContents(const std::filesystem::path& file, std::string_view bytes,
                                       std::string& reason, OldTail tail = OldTail::Drop);

// The same, doing its file operations through `files`.
[[nodiscard]] bool replaceFileContents(const std::filesystem::path& file, std::string_view bytes,
                                       std::string& reason, FileOperations& files,
                                       OldTail tail = OldTail::Drop);

// The ending of the temporary file beside a file being replaced; one left by
// a crash holds nothing that the file itself does not.
inline constexpr std::string_view temporaryFileEnding = ".new~";

} // namespace purrlodge
