#include "app/SettingsLocation.h"

#include <cstdlib>
#include <string>

namespace purrlodge {

namespace {

std::string environmentValue(const char* name)
{
#ifdef _MSC_VER
    char* buffer = nullptr;
    std::size_t length = 0;
    std::string value;
    if (_dupenv_s(&buffer, &length, name) == 0 && buffer != nullptr)
        value = buffer;
    std::free(buffer);
    return value;
#else
    const char* value = std::getenv(name);
    return value != nullptr ? std::string(value) : std::string();
#endif
}

} // namespace

std::filesystem::path configurationFolder(std::string_view xdgConfigHome, std::string_view home)
{
    const std::filesystem::path xdg(xdgConfigHome);
    if (!xdgConfigHome.empty() && xdg.is_absolute())
        return xdg;
    if (!home.empty())
        return std::filesystem::path(home) / ".config";
    return {};
}

std::filesystem::path settingsFilePath()
{
    std::filesystem::path folder =
        configurationFolder(environmentValue("XDG_CONFIG_HOME"), environmentValue("HOME"));
#ifdef _WIN32
    // Windows has neither variable as a rule; its per-user settings folder stands in.
    if (folder.empty())
        folder = environmentValue("APPDATA");
#endif
    return folder / settingsFileName;
}

} // namespace purrlodge
