#include "store/FolderTools.h"

#include <cerrno>
#include <filesystem>
#include <new>
#include <string_view>
#include <system_error>
#include <vector>

#include "ports/Ui.h"
#include "store/DataFolder.h"
#include "store/Windows1252.h"

namespace purrlodge {

namespace {

namespace fs = std::filesystem;

// The short names of the errors a deletion may meet, as the C library's
// headers spell them.
struct NamedError {
    int number;
    std::string_view name;
};
constexpr NamedError namedErrors[] = {
    {EPERM, "EPERM"},
    {ENOENT, "ENOENT"},
    {EIO, "EIO"},
    {ENOMEM, "ENOMEM"},
    {EACCES, "EACCES"},
    {EBUSY, "EBUSY"},
    {EEXIST, "EEXIST"},
    {ENOTDIR, "ENOTDIR"},
    {EISDIR, "EISDIR"},
    {EINVAL, "EINVAL"},
    {EMFILE, "EMFILE"},
    {ENOSPC, "ENOSPC"},
    {EROFS, "EROFS"},
    {ENAMETOOLONG, "ENAMETOOLONG"},
    {ENOTEMPTY, "ENOTEMPTY"},
    {ELOOP, "ELOOP"},
};

std::string_view errorName(int number)
{
    for (const NamedError& error : namedErrors) {
        if (error.number == number)
            return error.name;
    }
    return "?";
}

// "Error %i (%s) %s": the error's number, its short name and its description.
std::string errorLine(const std::error_code& error)
{
    const std::error_condition condition = error.default_error_condition();
    const std::string_view name =
        condition.category() == std::generic_category() ? errorName(condition.value()) : "?";
    return "Error " + std::to_string(error.value()) + " (" + std::string(name) + ") " +
           error.message();
}

// Removes one file or empty folder; a failure is told in an "Error" box.
void removeOrReport(Ui& ui, const fs::path& path, std::string_view what)
{
    std::error_code error;
    if (fs::remove(path, error) && !error)
        return;
    if (!error) // it vanished meanwhile
        error = std::make_error_code(std::errc::no_such_file_or_directory);
    ui.showMessage({std::string(what) + windows1252Of(path) + "\n" + errorLine(error), "Error"});
}

void deleteContents(Ui& ui, const fs::path& folder, bool descend, bool removeFolder)
{
    // List first and delete afterwards, so the listing never sees its own deletions.
    std::vector<fs::directory_entry> entries;
    std::error_code error;
    for (fs::directory_iterator it(folder, error), end; !error && it != end; it.increment(error))
        entries.push_back(*it);
    if (error && entries.empty())
        return; // nothing listed: nothing to delete

    for (const fs::directory_entry& entry : entries) {
        std::error_code statusError;
        // A link is deleted as a file; its target is never entered.
        if (entry.symlink_status(statusError).type() == fs::file_type::directory) {
            if (descend)
                deleteFolderContents(ui, windows1252Of(entry.path()), true, true);
            continue;
        }
        removeOrReport(ui, entry.path(), "error deleting file: ");
    }
    if (removeFolder)
        removeOrReport(ui, folder, "error deleting directory: ");
}

} // namespace

int makeFolderChain(const std::string& folder)
{
    const std::string trimmed = withoutTrailingSeparators(folder);
    if (trimmed.empty())
        return 0;

    const fs::path target = nativePath(trimmed);
    std::error_code error;
    if (fs::exists(target, error))
        return 0;
    // Every missing level is made: paths here begin below existing folders, so
    // stopping at the first existing level would leave the folder unmade.
    fs::create_directories(target, error);
    return !error && fs::is_directory(target, error) ? 1 : 0;
}

void deleteFolderContents(Ui& ui, const std::string& folder, bool descend, bool removeFolder)
{
    try {
        deleteContents(ui, nativePath(folder), descend, removeFolder);
    } catch (const std::bad_alloc&) {
        ui.showMessage(
            {"Out of memory deleting directory \"" + folder + "\". Reboot Windows & retry.",
             "Error"});
    }
}

} // namespace purrlodge
