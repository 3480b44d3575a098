#include "app/IniProfile.h"

#include <algorithm>
#include <utility>

#include "app/IniFile.h"
#include "store/TextHelpers.h"
#include "store/Windows1252.h"

namespace purrlodge {

namespace {

// Room the settings are read into, less the terminating zero.
constexpr std::size_t valueLength = 80;
constexpr std::size_t driveValueLength = 4;

} // namespace

IniProfile::IniProfile(std::filesystem::path file, WriteErrorHandler onWriteError,
                       std::string section)
    : file_(std::move(file)), onWriteError_(std::move(onWriteError)), section_(std::move(section))
{}

std::string IniProfile::read(std::string_view key) const
{
    std::string reason;
    const auto ini = IniFile::load(file_, reason);
    if (!ini)
        return {};
    std::string value = ini->value(section_, key).value_or(std::string());
    value.resize(std::min(value.size(), equalsIgnoringCase(key, "CurrentDrive") ? driveValueLength
                                                                                : valueLength));
    return value;
}

std::optional<std::string> IniProfile::unreadable() const
{
    std::string reason;
    if (IniFile::load(file_, reason))
        return std::nullopt;
    return windows1252Of(file_) + ": " + reason;
}

bool IniProfile::write(std::string_view key, std::string_view value)
{
    std::string reason;
    // A file that exists but cannot be read is not replaced: that would lose
    // every other setting in it.
    auto ini = IniFile::load(file_, reason);
    if (ini) {
        ini->setValue(section_, key, value);
        if (ini->save(file_, reason))
            return true;
    }
    if (onWriteError_)
        onWriteError_(file_.string(), reason);
    return false;
}

} // namespace purrlodge
