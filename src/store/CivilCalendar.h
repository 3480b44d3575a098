#pragma once

#include <cstdint>

#include "ports/Clock.h"

namespace purrlodge {

// Proleptic Gregorian calendar arithmetic in 64 bits, independent of the
// machine's time zone: days since 1 January 1970 and back.
[[nodiscard]] std::int64_t daysFromCivil(std::int64_t year, int month, int day);

// The UTC calendar reading of seconds since 1970 (weekday 0 = Sunday).
[[nodiscard]] CivilTime civilFromSeconds(std::int64_t secondsSince1970);

} // namespace purrlodge
