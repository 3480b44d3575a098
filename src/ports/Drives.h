#pragma once

#include <cstdint>
#include <optional>
#include <string>

namespace purrlodge {

// Drive letters as the person types them, mapped to folders of this machine.
class Drives {
public:
    virtual ~Drives() = default;

    // The root folder a drive letter names (ending in the separator), or
    // nothing when the letter is not set up on this machine.
    [[nodiscard]] virtual std::optional<std::string> rootOf(char letter) const = 0;

    // Free bytes on the file system holding the folder, or nothing when unknown.
    [[nodiscard]] virtual std::optional<std::uint64_t>
    freeBytes(const std::string& folder) const = 0;

    // Whether the folder is the root of a file system of its own (a disc or
    // memory stick mounted there), so clearing it touches nothing else.
    [[nodiscard]] virtual bool isOwnMount(const std::string& folder) const = 0;
};

} // namespace purrlodge
