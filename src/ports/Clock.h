#pragma once

#include <cstdint>

namespace purrlodge {

// A moment as the local calendar shows it.
struct CivilTime {
    int year = 1970; // four digits
    int month = 1;   // 1..12
    int day = 1;     // 1..31
    int hour = 0;
    int minute = 0;
    int second = 0;
    int weekday = 4; // 0 Sunday .. 6 Saturday

    friend bool operator==(const CivilTime&, const CivilTime&) = default;
};

// The time of day and the local calendar.
class Clock {
public:
    virtual ~Clock() = default;

    // Seconds since 1 January 1970 UTC.
    [[nodiscard]] virtual std::int64_t now() const = 0;

    // The local calendar's reading of a moment given in seconds since 1970.
    [[nodiscard]] virtual CivilTime toLocal(std::int64_t secondsSince1970) const = 0;
};

} // namespace purrlodge
