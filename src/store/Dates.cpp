#include "store/Dates.h"

#include <algorithm>
#include <array>
#include <climits>

#include "store/TextHelpers.h"

namespace purrlodge {

namespace {

std::int64_t floorDiv(std::int64_t value, std::int64_t divisor)
{
    const std::int64_t quotient = value / divisor;
    return (value % divisor != 0 && value < 0) ? quotient - 1 : quotient;
}

// Leap years before `year` counted from a fixed origin; the difference of two
// calls counts the leap years between them, in either direction of 1970.
std::int64_t leapYearsBefore(std::int64_t year)
{
    const std::int64_t previous = year - 1;
    return floorDiv(previous, 4) - floorDiv(previous, 100) + floorDiv(previous, 400);
}

// Days of the months before `month` in a year; months outside 1..12 are clamped
// so that a mistyped month still gives a number.
std::int64_t daysBeforeMonth(int month, bool leap)
{
    const int monthsBefore = std::clamp(month, 1, 13) - 1;
    std::int64_t days = 0;
    for (int index = 0; index < monthsBefore; ++index)
        days += monthLength(index + 1, leap);
    return days;
}

bool isLeap(std::int64_t year)
{
    return (year % 4 == 0 && year % 100 != 0) || year % 400 == 0;
}

// As "%02d" writes it: at least two digits, a sign counting as one.
std::string twoDigits(int value)
{
    std::string text = std::to_string(value);
    if (text.size() < 2)
        text.insert(0, 1, '0');
    return text;
}

} // namespace

DateParts readDateParts(std::string_view text)
{
    DateParts parts;
    parts.day = leadingInt(text);
    const std::size_t firstSlash = text.find('/');
    if (firstSlash == std::string_view::npos)
        return parts;
    const std::string_view afterFirst = text.substr(firstSlash + 1);
    parts.month = leadingInt(afterFirst);
    const std::size_t secondSlash = afterFirst.find('/');
    if (secondSlash != std::string_view::npos)
        parts.year = leadingInt(afterFirst.substr(secondSlash + 1));
    return parts;
}

bool isLeapYear(int year)
{
    return isLeap(year);
}

int monthLength(int month1to12, bool leapYear)
{
    static constexpr std::array<int, 12> lengths = {31, 28, 31, 30, 31, 30, 31, 31, 30, 31, 30, 31};
    if (month1to12 < 1 || month1to12 > 12)
        return 0;
    return lengths[static_cast<std::size_t>(month1to12 - 1)] +
           (month1to12 == 2 && leapYear ? 1 : 0);
}

std::string formatDateText(int day, int month, int year)
{
    return twoDigits(day) + '/' + twoDigits(month) + '/' + twoDigits(year);
}

std::int64_t dateToNumber(std::string_view ddmmyy)
{
    const DateParts parts = readDateParts(ddmmyy);
    const std::int64_t year = std::int64_t{parts.year} + (parts.year < 50 ? 2000 : 1900);
    const bool leap = isLeap(year);
    const std::int64_t leapDays = leapYearsBefore(year) - leapYearsBefore(1970);
    return (year - 1970) * secondsPerYear + leapDays * secondsPerDay +
           daysBeforeMonth(parts.month, leap) * secondsPerDay + parts.day * secondsPerDay -
           secondsPerDay / 2;
}

std::int64_t dayCount(std::string_view first, std::string_view second)
{
    const std::int64_t from = dateToNumber(normaliseDate(3, first));
    const std::int64_t to = dateToNumber(normaliseDate(3, second));
    return (to - from) / secondsPerDay + 1;
}

std::int64_t yearsSince(int year, int currentYear)
{
    return std::int64_t{currentYear} - year;
}

int ageFromNumber(std::int64_t t, std::int64_t now)
{
    if (t < 1)
        return -1;
    return static_cast<int>((now - t) / secondsPerYear);
}

std::string normaliseDate(int parts, std::string_view text)
{
    DateParts date = readDateParts(text);
    if (parts == 2)
        date.year = 1;
    return formatDateText(date.day, date.month, date.year);
}

int countCheckAndNormalise(std::string& text, int expectedSlashes)
{
    const auto slashes = std::count(text.begin(), text.end(), '/');
    if (slashes > expectedSlashes)
        return 1;
    if (slashes < expectedSlashes)
        return -1;
    DateParts date = readDateParts(text);
    if (date.year > 2000 && date.year <= 9999)
        date.year -= 2000;
    text = formatDateText(date.day, date.month, date.year);
    return 0;
}

std::string weekdayName(bool full, std::string_view dateText, const Clock& clock)
{
    const int weekday = clock.toLocal(dateToNumber(dateText)).weekday;
    return std::string(full ? weekdayFullName(weekday) : weekdayShortName(weekday));
}

std::string longDate(std::int64_t t, const Clock& clock)
{
    const CivilTime local = clock.toLocal(t);
    std::string text = "on ";
    text += weekdayFullName(local.weekday);
    text += ' ';
    text += std::to_string(local.day);
    text += daySuffix(local.day);
    text += ' ';
    text += monthName(local.month);
    text += ' ';
    text += std::to_string(local.year);
    return text;
}

std::string monthAndYearText(std::int64_t t, const Clock& clock)
{
    const CivilTime local = clock.toLocal(t);
    return twoDigits(local.month) + '/' + twoDigits(local.year % 100);
}

std::string timeOfDayText(std::int64_t t, const Clock& clock)
{
    const CivilTime local = clock.toLocal(t);
    return twoDigits(local.hour) + ':' + twoDigits(local.minute) + " hrs";
}

} // namespace purrlodge
