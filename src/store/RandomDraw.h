#pragma once

#include <cstdint>

namespace purrlodge {

class Clock;
class Random;

// Draws random numbers the way client codes have always been made: the first
// draw seeds the generator with the time, every later draw with the previous
// result, and the next value is taken modulo n + 1.
class RandomDraw {
public:
    RandomDraw(Random& random, const Clock& clock) : random_(random), clock_(clock) {}

    // A number 0..n.
    int upTo(int n);

private:
    Random& random_;
    const Clock& clock_;
    bool seeded_ = false;
    std::uint32_t previous_ = 0;
};

} // namespace purrlodge
