#pragma once

#include <optional>
#include <string>
#include <string_view>

namespace purrlodge {

// The settings file, one key at a time, in the program's own section.
// A missing key reads as the empty string; keys ignore case.
class Profile {
public:
    virtual ~Profile() = default;

    [[nodiscard]] virtual std::string read(std::string_view key) const = 0;
    // Whether the value reached the file. A failure has been told to the
    // person ("File Error") and the file keeps its old value.
    [[nodiscard]] virtual bool write(std::string_view key, std::string_view value) = 0;

    // Why the settings cannot be read at all, naming the file; nothing when
    // they can (a file not made yet reads as empty settings).
    [[nodiscard]] virtual std::optional<std::string> unreadable() const = 0;
};

} // namespace purrlodge
