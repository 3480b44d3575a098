#pragma once

#include <filesystem>
#include <string_view>

namespace purrlodge {

// The settings file's name, shared by every data set of the user.
inline constexpr std::string_view settingsFileName = "HEARTH.INI";

// The user's configuration folder: $XDG_CONFIG_HOME when it holds an absolute
// path (a relative one is ignored, as the XDG rules say), else $HOME/.config;
// empty when neither is known.
[[nodiscard]] std::filesystem::path configurationFolder(std::string_view xdgConfigHome,
                                                        std::string_view home);

// Where HEARTH.INI lives for this user, from the process's environment. The
// folder may not exist yet: the first write of a setting makes it. Without any
// configuration folder the file lies in the working folder.
[[nodiscard]] std::filesystem::path settingsFilePath();

} // namespace purrlodge
