#include <array>

#include "store/Dates.h"

namespace purrlodge {

namespace {

constexpr std::array<std::string_view, 7> weekdayFullNames = {
    "Sunday", "Monday", "Tuesday", "Wednesday", "Thursday", "Friday", "Saturday"};

// Thursday's short form has four letters.
constexpr std::array<std::string_view, 7> weekdayShortNames = {"Sun",  "Mon", "Tue", "Wed",
                                                               "Thur", "Fri", "Sat"};

constexpr std::array<std::string_view, 12> monthNames = {
    "January", "February", "March",     "April",   "May",      "June",
    "July",    "August",   "September", "October", "November", "December"};

template <std::size_t Size>
std::string_view pick(const std::array<std::string_view, Size>& names, std::int64_t index)
{
    if (index < 0 || static_cast<std::size_t>(index) >= Size)
        return {};
    return names[static_cast<std::size_t>(index)];
}

} // namespace

std::string_view weekdayFullName(int weekday)
{
    return pick(weekdayFullNames, weekday);
}

std::string_view weekdayShortName(int weekday)
{
    return pick(weekdayShortNames, weekday);
}

std::string_view monthName(int month1to12)
{
    return pick(monthNames, std::int64_t{month1to12} - 1); // any int, INT_MIN too
}

std::string daySuffix(int day)
{
    // Only the last digit written counts, so the teens are not treated apart.
    const std::string written = std::to_string(day);
    switch (written.back()) {
    case '1':
        return "st";
    case '2':
        return "nd";
    default:
        return "th";
    }
}

} // namespace purrlodge
