#include "store/DataFolder.h"

#include <algorithm>
#include <cstring>
#include <filesystem>
#include <fstream>
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

bool isPlainFileName(std::string_view name)
{
    if (name.empty() || name == "." || name.find("..") != std::string_view::npos)
        return false;
    for (const char c : name) {
        const auto u = static_cast<unsigned char>(c);
        if (u < 0x20 || u == 0x7F || c == '/' || c == '\\' || c == ':')
            return false;
    }
    return true;
}

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

bool isFarLongerThanBlock(std::uintmax_t fileSize, std::size_t blockSize)
{
    return fileSize / 2 > blockSize;
}

std::string withoutTrailingSeparators(std::string folder)
{
    while (folder.size() > 1 && isFolderSeparator(folder.back()))
        folder.pop_back();
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
    std::ifstream stream = openForReading(name);
    if (!stream)
        return false;
    stream.read(static_cast<char*>(block), static_cast<std::streamsize>(size));
    if (stream.bad()) {
        // A folder in the file's place opens but cannot be read: nothing was read.
        std::memset(block, 0, size);
        return false;
    }
    if (const std::optional<std::uintmax_t> length = fileSize(name);
        length && isFarLongerThanBlock(*length, size))
        reportOversized(name, *length, size);
    return true;
}

std::ifstream DataFolder::openForReading(std::string_view name) const
{
    if (!isPlainFileName(name)) {
        std::ifstream refused; // fails as a missing file does
        refused.setstate(std::ios::failbit);
        return refused;
    }
    return std::ifstream(toPath(fileName(name)), std::ios::binary);
}

void DataFolder::reportOversized(std::string_view name, std::uintmax_t fileSize,
                                 std::size_t blockSize) const
{
    if (!reportedOversized_.insert(std::string(name)).second)
        return;
    ui_.showMessage({"The file " + fileName(name) + " is " + std::to_string(fileSize) +
                         " bytes long, far longer than the " + std::to_string(blockSize) +
                         " bytes it should hold, and may be damaged.\n\nOnly its first " +
                         std::to_string(blockSize) +
                         " bytes are used; the rest is left on the disc as it is.",
                     "Data Error", MessageIcon::Exclamation});
}

bool DataFolder::writeBytes(std::string_view name, const void* block, std::size_t size) const
{
    return writeWhole(name, block, size, true);
}

bool DataFolder::replaceBytes(std::string_view name, const void* block, std::size_t size) const
{
    return writeWhole(name, block, size, false);
}

bool DataFolder::writeWhole(std::string_view name, const void* block, std::size_t size,
                            bool keepTail) const
{
    const std::string target = fileName(name);
    std::string reason = "the name is not that of a file in the data folder";
    if (isPlainFileName(name) &&
        replaceFileContents(toPath(target), {static_cast<const char*>(block), size}, reason,
                            keepTail ? OldTail::Keep : OldTail::Drop))
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

namespace {

// The names of the folder's regular files that the test accepts, sorted.
template <class Test>
std::vector<std::string> namesWhere(const std::string& folder, const Test& accepted)
{
    std::vector<std::string> names;
    std::error_code error;
    for (const auto& entry : std::filesystem::directory_iterator(toPath(folder), error)) {
        std::string name = windows1252Of(entry.path().filename());
        if (accepted(toUpper(name)) && entry.is_regular_file(error))
            names.push_back(std::move(name));
    }
    std::sort(names.begin(), names.end());
    return names;
}

} // namespace

std::vector<std::string> DataFolder::namesWithExtension(std::string_view extension) const
{
    const std::string wanted = toUpper(extension);
    return namesWhere(folder_, [&wanted](const std::string& name) {
        return name.size() > wanted.size() && name.ends_with(wanted);
    });
}

std::vector<std::string> DataFolder::namesWithStem(std::string_view stem) const
{
    const std::string wanted = toUpper(stem) + '.';
    return namesWhere(folder_,
                      [&wanted](const std::string& name) { return name.starts_with(wanted); });
}

bool DataFolder::remove(std::string_view name) const
{
    std::error_code error;
    return isPlainFileName(name) && std::filesystem::remove(toPath(fileName(name)), error);
}

std::optional<std::uintmax_t> DataFolder::fileSize(std::string_view name) const
{
    if (!isPlainFileName(name))
        return std::nullopt;
    std::error_code error;
    const std::uintmax_t size = std::filesystem::file_size(toPath(fileName(name)), error);
    return error ? std::nullopt : std::optional<std::uintmax_t>(size);
}

std::optional<std::string> DataFolder::keepDamagedCopy(std::string_view name) const
{
    if (!exists(name))
        return std::nullopt;
    const std::string stem(name.substr(0, name.find('.')));
    for (int number = 0; number < 100; ++number) {
        const std::string copy = stem + (number == 0 ? "" : std::to_string(number)) + ".BAD";
        std::error_code error;
        if (std::filesystem::exists(toPath(fileName(copy)), error) || error)
            continue;
        if (std::filesystem::copy_file(toPath(fileName(name)), toPath(fileName(copy)), error))
            return copy;
        return std::nullopt;
    }
    return std::nullopt;
}

std::vector<std::string> DataFolder::removeLeftoverTemporaryFiles() const
{
    std::vector<std::string> removed;
    std::error_code error;
    for (std::filesystem::directory_iterator it(toPath(folder_), error), end; !error && it != end;
         it.increment(error)) {
        std::error_code typeError;
        const std::string name = windows1252Of(it->path().filename());
        if (it->is_regular_file(typeError) && !it->is_symlink(typeError) &&
            name.ends_with(temporaryFileEnding) && remove(name))
            removed.push_back(name);
    }
    return removed;
}

} // namespace purrlodge
