#include "store/SafeFile.h"

#include <cerrno>
#include <cstdio>
#include <system_error>

#ifdef _WIN32
#include <io.h>
#else
#include <unistd.h>
#endif

namespace purrlodge {

namespace fs = std::filesystem;

namespace {

std::string reasonOf(int error)
{
    return std::generic_category().message(error != 0 ? error : EIO);
}

std::FILE* openForWriting(const fs::path& file)
{
#ifdef _WIN32
    return _wfopen(file.c_str(), L"wb");
#else
    return std::fopen(file.c_str(), "wb");
#endif
}

bool flushToDisc(std::FILE* stream)
{
    if (std::fflush(stream) != 0)
        return false;
#ifdef _WIN32
    return _commit(_fileno(stream)) == 0;
#else
    return fsync(fileno(stream)) == 0;
#endif
}

// Writes the bytes and makes sure they reached the disc before the rename;
// otherwise a crash could leave an empty file in place of the old one.
bool writeToDisc(const fs::path& file, std::string_view bytes, std::string& reason)
{
    std::FILE* stream = openForWriting(file);
    if (stream == nullptr) {
        reason = reasonOf(errno);
        return false;
    }
    bool written =
        std::fwrite(bytes.data(), 1, bytes.size(), stream) == bytes.size() && flushToDisc(stream);
    int error = written ? 0 : errno;
    if (std::fclose(stream) != 0 && written) {
        written = false;
        error = errno;
    }
    if (!written)
        reason = reasonOf(error);
    return written;
}

} // namespace

bool replaceFileContents(const fs::path& file, std::string_view bytes, std::string& reason)
{
    std::error_code error;
    fs::path target = file;
    if (fs::is_symlink(file, error)) {
        const fs::path resolved = fs::weakly_canonical(file, error);
        if (!error)
            target = resolved;
    }

    fs::path temporary = target;
    temporary += ".new~";
    std::error_code ignored;
    if (!writeToDisc(temporary, bytes, reason)) {
        fs::remove(temporary, ignored);
        return false;
    }
    const fs::file_status old = fs::status(target, ignored);
    if (fs::exists(old))
        fs::permissions(temporary, old.permissions(), ignored);
    fs::rename(temporary, target, error);
    if (error) {
        reason = error.message();
        fs::remove(temporary, ignored);
        return false;
    }
    return true;
}

} // namespace purrlodge
