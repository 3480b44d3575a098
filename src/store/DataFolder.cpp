#include "store/DataFolder.h"

#include <cerrno>
#include <cstdio>
#include <cstring>
#include <filesystem>
#include <fstream>
#include <system_error>
#include <vector>

#ifdef _WIN32
#include <io.h>
#else
#include <unistd.h>
#endif

#include "app/Ui.h"
#include "store/TextHelpers.h"
#include "store/Windows1252.h"

namespace purrlodge {

namespace {

std::filesystem::path toPath(const std::string& name)
{
    return nativePath(name);
}

std::FILE* openForWriting(const std::filesystem::path& path)
{
#ifdef _WIN32
    return _wfopen(path.c_str(), L"wb");
#else
    return std::fopen(path.c_str(), "wb");
#endif
}

bool flushToDisk(std::FILE* file)
{
    if (std::fflush(file) != 0)
        return false;
#ifdef _WIN32
    return _commit(_fileno(file)) == 0;
#else
    return fsync(fileno(file)) == 0;
#endif
}

} // namespace

DataFolder::DataFolder(std::string folder, Ui& ui) : folder_(std::move(folder)), ui_(ui)
{}

std::string DataFolder::fileName(std::string_view name) const
{
    return folder_ + std::string(name);
}

bool DataFolder::readBytes(std::string_view name, void* block, std::size_t size) const
{
    std::memset(block, 0, size);
    std::ifstream file(toPath(fileName(name)), std::ios::binary);
    if (!file)
        return false;
    file.read(static_cast<char*>(block), static_cast<std::streamsize>(size));
    return true;
}

bool DataFolder::writeBytes(std::string_view name, const void* block, std::size_t size) const
{
    const std::string target = fileName(name);
    const std::string temporary = target + ".new~";

    // Keep the tail of a longer existing file, as a write without truncation does.
    std::vector<char> contents(static_cast<const char*>(block),
                               static_cast<const char*>(block) + size);
    std::error_code sizeError;
    const auto existingSize = std::filesystem::file_size(toPath(target), sizeError);
    if (!sizeError && existingSize > size) {
        std::ifstream existing(toPath(target), std::ios::binary);
        existing.seekg(static_cast<std::streamoff>(size));
        contents.resize(static_cast<std::size_t>(existingSize));
        existing.read(contents.data() + size, static_cast<std::streamsize>(existingSize - size));
        if (!existing)
            contents.resize(size + static_cast<std::size_t>(existing.gcount()));
    }

    auto fail = [&](const std::string& reason) {
        std::error_code ignored;
        std::filesystem::remove(toPath(temporary), ignored);
        ui_.showMessage({"The file " + target + " could not be saved:\n" + reason +
                             "\n\nThe copy on disc has not been changed.",
                         "File Error", MessageIcon::Exclamation});
        return false;
    };

    std::FILE* file = openForWriting(toPath(temporary));
    if (!file)
        return fail(std::strerror(errno));
    const bool written =
        std::fwrite(contents.data(), 1, contents.size(), file) == contents.size() &&
        flushToDisk(file);
    const std::string writeError = written ? std::string() : std::strerror(errno);
    const bool closed = std::fclose(file) == 0;
    if (!written)
        return fail(writeError);
    if (!closed)
        return fail(std::strerror(errno));

    std::error_code error;
    std::filesystem::rename(toPath(temporary), toPath(target), error);
    if (error)
        return fail(error.message());
    return true;
}

bool DataFolder::exists(std::string_view name) const
{
    std::error_code ignored;
    return std::filesystem::is_regular_file(toPath(fileName(name)), ignored);
}

bool DataFolder::existsIgnoringCase(std::string_view name) const
{
    if (exists(name))
        return true;
    const std::string wanted = toUpper(name);
    std::error_code error;
    for (const auto& entry : std::filesystem::directory_iterator(toPath(folder_), error)) {
        if (entry.is_regular_file(error) &&
            toUpper(windows1252Of(entry.path().filename())) == wanted)
            return true;
    }
    return false;
}

bool DataFolder::remove(std::string_view name) const
{
    std::error_code error;
    return std::filesystem::remove(toPath(fileName(name)), error);
}

} // namespace purrlodge
