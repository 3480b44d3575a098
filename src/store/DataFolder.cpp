#include "store/DataFolder.h"

#include <cstring>
#include <filesystem>
#include <fstream>
#include <iterator>
#include <system_error>

#include "ports/Ui.h"
#include "store/SafeFile.h"
#include "store/TextHelpers.h"
#include "store/Windows1252.h"

namespace purrlodge {

namespace {

std::filesystem::path toPath(const std::string& name)
{
    return nativePath(name);
}

} // namespace

bool isFolderSeparator(char c)
{
    return c == '/' || c == folderSeparator;
}

std::string withTrailingSeparator(std::string folder)
{
    if (!folder.empty() && !isFolderSeparator(folder.back()))
        folder += folderSeparator;
    return folder;
}

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
    if (file.bad()) {
        // A folder in the file's place opens but cannot be read: nothing was read.
        std::memset(block, 0, size);
        return false;
    }
    return true;
}

bool DataFolder::writeBytes(std::string_view name, const void* block, std::size_t size) const
{
    const std::string target = fileName(name);

    // Keep the tail of a longer existing file, as a write without truncation does.
    std::string contents(static_cast<const char*>(block), size);
    std::error_code sizeError;
    const auto existingSize = std::filesystem::file_size(toPath(target), sizeError);
    if (!sizeError && existingSize > size) {
        std::ifstream existing(toPath(target), std::ios::binary);
        existing.seekg(static_cast<std::streamoff>(size));
        contents.append(std::istreambuf_iterator<char>(existing), std::istreambuf_iterator<char>());
    }

    std::string reason;
    if (replaceFileContents(toPath(target), contents, reason))
        return true;
    ui_.showMessage({"The file " + target + " could not be saved:\n" + reason +
                         "\n\nThe copy on disc has not been changed.",
                     "File Error", MessageIcon::Exclamation});
    return false;
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
