#include "store/SafeFile.h"

#include <cerrno>

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

// Writes the bytes and makes sure they reached the disc before the rename;
// otherwise a crash could leave an empty file in place of the old one.
bool writeToDisc(FileOperations& files, const fs::path& file, std::string_view bytes,
                 std::error_code& error)
{
    std::FILE* stream = files.open(file, error);
    if (stream == nullptr)
        return false;
    const bool written =
        files.write(stream, bytes, error) == bytes.size() && files.flushToDisc(stream, error);
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

bool replaceFileContents(const fs::path& file, std::string_view bytes, std::string& reason)
{
    FileOperations disc;
    return replaceFileContents(file, bytes, reason, disc);
}

bool replaceFileContents(const fs::path& file, std::string_view bytes, std::string& reason,
                         FileOperations& files)
{
    std::error_code error;
    fs::path target = file;
    if (!linkedFile(target, error)) {
        reason = reasonOf(error);
        return false;
    }
    fs::path temporary = target;
    temporary += ".new~";
    if (!writeToDisc(files, temporary, bytes, error)) {
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
