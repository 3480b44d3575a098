#pragma once

#include <bit>
#include <cstdint>
#include <cstring>

namespace purrlodge {

// A 32-bit little-endian signed integer stored as four bytes. As a plain byte
// array it has alignment 1, so records built from it have no padding.
struct Int32LE {
    unsigned char bytes[4];

    [[nodiscard]] std::int32_t get() const
    {
        const std::uint32_t u = static_cast<std::uint32_t>(bytes[0]) |
                                (static_cast<std::uint32_t>(bytes[1]) << 8) |
                                (static_cast<std::uint32_t>(bytes[2]) << 16) |
                                (static_cast<std::uint32_t>(bytes[3]) << 24);
        return static_cast<std::int32_t>(u);
    }
    void set(std::int32_t value)
    {
        const auto u = static_cast<std::uint32_t>(value);
        bytes[0] = static_cast<unsigned char>(u & 0xFF);
        bytes[1] = static_cast<unsigned char>((u >> 8) & 0xFF);
        bytes[2] = static_cast<unsigned char>((u >> 16) & 0xFF);
        bytes[3] = static_cast<unsigned char>((u >> 24) & 0xFF);
    }
};

// A 32-bit little-endian unsigned integer stored as four bytes.
struct Uint32LE {
    Int32LE raw;

    [[nodiscard]] std::uint32_t get() const { return static_cast<std::uint32_t>(raw.get()); }
    void set(std::uint32_t value) { raw.set(static_cast<std::int32_t>(value)); }
};

// A 32-bit IEEE float stored little-endian as four bytes.
struct Float32LE {
    Int32LE raw;

    [[nodiscard]] float get() const { return std::bit_cast<float>(raw.get()); }
    void set(float value) { raw.set(std::bit_cast<std::int32_t>(value)); }
};

static_assert(sizeof(Int32LE) == 4 && alignof(Int32LE) == 1);
static_assert(sizeof(Uint32LE) == 4 && alignof(Uint32LE) == 1);
static_assert(sizeof(Float32LE) == 4 && alignof(Float32LE) == 1);

} // namespace purrlodge
