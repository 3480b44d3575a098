#include "store/CivilCalendar.h"

namespace purrlodge {

// The well-known era-based conversion: exact for every proleptic Gregorian date.
std::int64_t daysFromCivil(std::int64_t year, int month, int day)
{
    // In 64 bits, so that a month or day read from a damaged date still gives a number.
    const std::int64_t m = month;
    year -= m <= 2 ? 1 : 0;
    const std::int64_t era = (year >= 0 ? year : year - 399) / 400;
    const std::int64_t yearOfEra = year - era * 400;
    const std::int64_t dayOfYear = (153 * (m + (m > 2 ? -3 : 9)) + 2) / 5 + day - 1;
    const std::int64_t dayOfEra = yearOfEra * 365 + yearOfEra / 4 - yearOfEra / 100 + dayOfYear;
    return era * 146097 + dayOfEra - 719468;
}

CivilTime civilFromSeconds(std::int64_t secondsSince1970)
{
    std::int64_t days = secondsSince1970 / 86400;
    std::int64_t secondOfDay = secondsSince1970 % 86400;
    if (secondOfDay < 0) {
        secondOfDay += 86400;
        --days;
    }
    CivilTime civil;
    civil.hour = static_cast<int>(secondOfDay / 3600);
    civil.minute = static_cast<int>(secondOfDay % 3600 / 60);
    civil.second = static_cast<int>(secondOfDay % 60);
    civil.weekday = static_cast<int>(((days % 7) + 11) % 7); // 1 Jan 1970 was a Thursday

    const std::int64_t z = days + 719468;
    const std::int64_t era = (z >= 0 ? z : z - 146096) / 146097;
    const std::int64_t dayOfEra = z - era * 146097;
    const std::int64_t yearOfEra =
        (dayOfEra - dayOfEra / 1460 + dayOfEra / 36524 - dayOfEra / 146096) / 365;
    const std::int64_t dayOfYear = dayOfEra - (365 * yearOfEra + yearOfEra / 4 - yearOfEra / 100);
    const std::int64_t mp = (5 * dayOfYear + 2) / 153;
    civil.day = static_cast<int>(dayOfYear - (153 * mp + 2) / 5 + 1);
    civil.month = static_cast<int>(mp < 10 ? mp + 3 : mp - 9);
    civil.year = static_cast<int>(yearOfEra + era * 400 + (civil.month <= 2 ? 1 : 0));
    return civil;
}

} // namespace purrlodge
