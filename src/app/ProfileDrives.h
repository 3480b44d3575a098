#pragma once

#include <cstdint>
#include <optional>
#include <string>

#include "ports/Drives.h"

namespace purrlodge {

class Profile;

// Drive letters over the settings file. On Windows a letter is the drive
// itself. Elsewhere each letter names the folder set in its key (DriveA ..
// DriveZ); without a setting, C is the user's home folder and every other
// letter is unset.
class ProfileDrives : public Drives {
public:
    // homeFolder stands for drive C when DriveC is not set; empty when unknown.
    ProfileDrives(const Profile& profile, std::string homeFolder);

    [[nodiscard]] std::optional<std::string> rootOf(char letter) const override;

    // The bytes free to this user on the file system that holds the folder.
    [[nodiscard]] std::optional<std::uint64_t> freeBytes(const std::string& folder) const override;

    // A drive's root on Windows; elsewhere a folder on another device than
    // the folder holding it.
    [[nodiscard]] bool isOwnMount(const std::string& folder) const override;

private:
    const Profile& profile_;
    std::string homeFolder_;
};

// The user's home folder from the environment ($HOME, or %USERPROFILE% on
// Windows); empty when it is not set.
[[nodiscard]] std::string userHomeFolder();

} // namespace purrlodge
