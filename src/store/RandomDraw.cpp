#include "store/RandomDraw.h"

#include "ports/Clock.h"
#include "ports/Random.h"

namespace purrlodge {

int RandomDraw::upTo(int n)
{
    random_.seed(seeded_ ? previous_ : static_cast<std::uint32_t>(clock_.now()));
    seeded_ = true;
    previous_ = random_.next() % static_cast<std::uint32_t>(n + 1);
    return static_cast<int>(previous_);
}

} // namespace purrlodge
