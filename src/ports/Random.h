#pragma once

#include <cstdint>

namespace purrlodge {

// A seedable pseudo-random generator in the manner of the C library's
// srand/rand: the same seed gives the same sequence.
class Random {
public:
    virtual ~Random() = default;

    virtual void seed(std::uint32_t seed) = 0;

    // The next value of the sequence, 0 .. 32767.
    virtual std::uint32_t next() = 0;
};

} // namespace purrlodge
