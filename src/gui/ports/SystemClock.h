#pragma once

#include "ports/Clock.h"

namespace purrlodge {

// The machine's clock and its local time zone.
class SystemClock : public Clock {
public:
    [[nodiscard]] std::int64_t now() const override;
    [[nodiscard]] CivilTime toLocal(std::int64_t secondsSince1970) const override;
};

} // namespace purrlodge
