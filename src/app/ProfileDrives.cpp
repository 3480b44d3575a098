#include "app/ProfileDrives.h"

#include <cstdlib>
#include <filesystem>
#include <system_error>
#include <utility>

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
