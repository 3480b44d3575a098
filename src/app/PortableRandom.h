#pragma once

#include <cstdint>

#include "ports/Random.h"

namespace purrlodge {

// The C standard's sample rand(): the same seed gives the same sequence on
// every platform.
class PortableRandom : public Random {
public:
    void seed(std::uint32_t seed) override { state_ = seed; }
    std::uint32_t next() override
    {
        state_ = state_ * 1103515245u + 12345u;
        return (state_ / 65536u) % 32768u;
    }

private:
    std::uint32_t state_ = 1;
};

} // namespace purrlodge
