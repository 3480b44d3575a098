#include "app/ProfileDrives.h"

#include <cstdlib>
#include <filesystem>
#include <system_error>
#include <utility>

#ifndef _WIN32
#include <sys/stat.h>
#endif

#include "ports/Profile.h"
#include "store/DataFolder.h"
#include "store/TextHelpers.h"
#include "store/Windows1252.h"

namespace purrlodge {

ProfileDrives::ProfileDrives(const Profile& profile, std::string homeFolder)
    : profile_(profile), homeFolder_(std::move(homeFolder))
{}

std::optional<std::string> ProfileDrives::rootOf(char letter) const
{
    const char drive = toUpper(letter);
    if (drive < 'A' || drive > 'Z')
        return std::nullopt;
#ifdef _WIN32
    return std::string{drive, ':', '\\'};
#else
    const std::string setting = profile_.read(std::string("Drive") + drive);
    if (!setting.empty())
        return withTrailingSeparator(setting);
    if (drive == 'C' && !homeFolder_.empty())
        return withTrailingSeparator(homeFolder_);
    return std::nullopt;
#endif
}

std::optional<std::uint64_t> ProfileDrives::freeBytes(const std::string& folder) const
{
    std::error_code error;
    const std::filesystem::space_info space = std::filesystem::space(nativePath(folder), error);
    if (error)
        return std::nullopt;
    return static_cast<std::uint64_t>(space.available);
}

bool ProfileDrives::isOwnMount(const std::string& folder) const
{
    std::string trimmed = folder;
    while (trimmed.size() > 1 && isFolderSeparator(trimmed.back()))
        trimmed.pop_back();
#ifdef _WIN32
    return trimmed.size() == 2 && trimmed[1] == ':';
#else
    struct stat self {};
    struct stat parent {};
    if (trimmed.empty() || ::stat(nativePath(trimmed).c_str(), &self) != 0 ||
        ::stat(nativePath(trimmed + "/..").c_str(), &parent) != 0 || !S_ISDIR(self.st_mode))
        return false;
    // A mount point sits on another device than its parent; the root of
    // everything is its own parent.
    return self.st_dev != parent.st_dev || self.st_ino == parent.st_ino;
#endif
}

std::string userHomeFolder()
{
#ifdef _WIN32
    const char* home = std::getenv("USERPROFILE");
#else
    const char* home = std::getenv("HOME");
#endif
    // The environment speaks the file system's Unicode; the program speaks 1252.
    return home ? windows1252Of(std::filesystem::path(home)) : std::string();
}

} // namespace purrlodge
