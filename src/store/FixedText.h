#pragma once

#include <cstddef>
#include <cstring>
#include <string>
#include <string_view>

namespace purrlodge {

// A zero-terminated text field of fixed width, as stored in the data files.
// The width includes the terminator, so at most Width - 1 characters are kept.
// Text is Windows-1252 bytes.
template <std::size_t Width> struct FixedText {
    static_assert(Width >= 1);
    char bytes[Width];

    static constexpr std::size_t capacity = Width - 1;

    // The text up to the first zero byte (or the whole field when a file holds
    // no terminator, so a damaged record never reads past its field).
    [[nodiscard]] std::string str() const
    {
        const void* end = std::memchr(bytes, 0, Width);
        const std::size_t length =
            end ? static_cast<std::size_t>(static_cast<const char*>(end) - bytes) : Width;
        return std::string(bytes, length);
    }

    // Stores the text cut to the field's capacity; the rest of the field is zeroed.
    void set(std::string_view text)
    {
        std::memset(bytes, 0, Width);
        // An empty view may have no data at all, which memcpy must not be given.
        if (!text.empty())
            std::memcpy(bytes, text.data(), text.size() < capacity ? text.size() : capacity);
    }

    void clear() { std::memset(bytes, 0, Width); }

    [[nodiscard]] bool isEmpty() const { return bytes[0] == 0; }
};

} // namespace purrlodge
