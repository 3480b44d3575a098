#include "store/SafeFile.h"

#include <array>
#include <cerrno>
#include <fstream>

#ifdef _WIN32
#include <io.h>
#else
#include <unistd.h>
#endif

namespace purrlodge {

namespace fs = std::filesystem;

namespace {

// The error errno holds, or a plain input/output error when it holds none.
std::error_code lastError()
{
    return {errno != 0 ? errno : EIO, std::generic_category()};
}

std::string reasonOf(const std::error_code& error)
{
    return error ? error.message() : std::make_error_code(std::errc::io_error).message();
}

// The file at the end of a chain of symbolic links, which need not exist yet:
// writing through a link that points nowhere makes the file it points to.
bool linkedFile(fs::path& file, std::error_code& error)
{
    constexpr int mostLinks = 40;
    for (int links = 0; links < mostLinks; ++links) {
        // A file that cannot be looked at is no link; opening it tells why.
        std::error_code notALink;
        if (!fs::is_symlink(file, notALink))
            return true;
        const fs::path next = fs::read_symlink(file, error);
        if (error)
            return false;
        file = next.is_absolute() ? next : file.parent_path() / next;
    }
    error = std::make_error_code(std::errc::too_many_symbolic_link_levels);
    return false;
}

// Appends what `old` holds beyond its first `from` bytes, a piece at a time.
bool copyTail(FileOperations& files, std::FILE* stream, const fs::path& old, std::uintmax_t from,
              std::error_code& error)
{
    std::error_code sizeError;
    const std::uintmax_t size = fs::file_size(old, sizeError);
    if (sizeError || size <= from)
        return true; // no older file, or no longer one: nothing to keep
    std::ifstream source(old, std::ios::binary);
    if (!source.seekg(static_cast<std::streamoff>(from))) {
        error = std::make_error_code(std::errc::io_error);
        return false;
    }
    std::array<char, 64 * 1024> piece{};
    while (source) {
        source.read(piece.data(), static_cast<std::streamsize>(piece.size()));
        const auto got = static_cast<std::size_t>(source.gcount());
        if (got > 0 && files.write(stream, {piece.data(), got}, error) != got)
            return false;
    }
    if (source.bad()) {
        error = std::make_error_code(std::errc::io_error);
        return false;
    }
    return true;
}

// Writes the bytes (and the old file's tail when asked) and makes sure they
// reached the disc before the rename; otherwise a crash could leave an empty
// file in place of the old one.
bool writeToDisc(FileOperations& files, const fs::path& file, std::string_view bytes,
                 const fs::path& old, OldTail tail, std::error_code& error)
{
    std::FILE* stream = files.open(file, error);
    if (stream == nullptr)
        return false;
    const bool written =
        files.write(stream, bytes, error) == bytes.size() &&
        (tail == OldTail::Drop || copyTail(files, stream, old, bytes.size(), error)) &&
        files.flushToDisc(stream, error);
    std::error_code closeError;
    const bool closed = files.close(stream, closeError);
    if (written && !closed)
        error = closeError;
    return written && closed;
}

} // namespace

std::FILE* FileOperations::open(const fs::path& file, std::error_code& error)
{
    errno = 0;
#ifdef _WIN32
    std::FILE* stream = _wfopen(file.c_str(), L"wb");
#else
    std::FILE* stream = std::fopen(file.c_str(), "wb");
#endif
    if (stream == nullptr)
        error = lastError();
    return stream;
}

std::size_t FileOperations::write(std::FILE* stream, std::string_view bytes, std::error_code& error)
{
    errno = 0;
    const std::size_t written = std::fwrite(bytes.data(), 1, bytes.size(), stream);
    if (written != bytes.size())
        error = lastError();
    return written;
}

bool FileOperations::flushToDisc(std::FILE* stream, std::error_code& error)
{
    errno = 0;
#ifdef _WIN32
    const bool flushed = std::fflush(stream) == 0 && _commit(_fileno(stream)) == 0;
#else
    const bool flushed = std::fflush(stream) == 0 && fsync(fileno(stream)) == 0;
#endif
    if (!flushed)
        error = lastError();
    return flushed;
}

bool FileOperations::close(std::FILE* stream, std::error_code& error)
{
    errno = 0;
    if (std::fclose(stream) == 0)
        return true;
    error = lastError();
    return false;
}

bool FileOperations::rename(const fs::path& from, const fs::path& to, std::error_code& error)
{
    fs::rename(from, to, error);
    return !error;
}

void FileOperations::remove(const fs::path& file)
{
    std::error_code ignored;
    fs::remove(file, ignored);
}

bool FileOperations::mayReplace(const fs::path& file, std::error_code& error)
{
    std::error_code missing;
    const fs::file_status status = fs::status(file, missing);
    if (!fs::exists(status))
        return true;
    if ((status.permissions() & fs::perms::owner_write) == fs::perms::none) {
        error = std::make_error_code(std::errc::permission_denied);
        return false;
    }
#ifndef _WIN32
    if (access(file.c_str(), W_OK) != 0) {
        error = lastError();
        return false;
    }
#endif
    return true;
}

bool replaceFileContents(const fs::path& file, std::string_view bytes, std::string& reason,
                         OldTail tail)
{
    FileOperations disc;
    return replaceFileContents(file, bytes, reason, disc, tail);
}

bool replaceFileContents(const fs::path& file, std::string_view bytes, std::string& reason,
                         FileOperations& files, OldTail tail)
{
    std::error_code error;
    fs::path target = file;
    if (!linkedFile(target, error)) {
        reason = reasonOf(error);
        return false;
    }
    if (!files.mayReplace(target, error)) {
        reason = "the file is write-protected (" + reasonOf(error) + ")";
        return false;
    }
    fs::path temporary = target;
    temporary += temporaryFileEnding;
    if (!writeToDisc(files, temporary, bytes, target, tail, error)) {
        reason = reasonOf(error);
        files.remove(temporary);
        return false;
    }
    // A failure here is not one of the save: file systems such as a memory
    // stick's have no permissions to set, and refuse.
    std::error_code ignored;
    const fs::file_status old = fs::status(target, ignored);
    if (fs::exists(old))
        fs::permissions(temporary, old.permissions(), ignored);
    if (!files.rename(temporary, target, error)) {
        reason = reasonOf(error);
        files.remove(temporary);
        return false;
    }
    return true;
}

} // namespace purrlodge
