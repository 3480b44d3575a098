#include <array>

#include "store/Dates.h"

namespace purrlodge {

namespace {

constexpr std::int64_t threeWeeksInSeconds = 21 * 86400;

constexpr std::array<std::string_view, 10> dateErrorMessages = {
    "",
    "The entry for Year seems wrong!",
    "The date does not exist in that month !",
    "No such month!",
    "No such year!",
    "The year is backdated",
    "Departing/Starting before arrival!",
    "More than 3 weeks?",
    "Suspicious Date of Birth",
    "You seem to have entered wrong dates\nPlease check and try again",
};

// February's length follows the current year, and a typed leap year allows one
// day more on top of that (so 30 February passes in a leap current year).
int allowedDays(int month, int currentYear, int typedYear)
{
    const int days = monthLength(month, isLeapYear(currentYear));
    return month == 2 && isLeapYear(typedYear) ? days + 1 : days;
}

} // namespace

int validateDate(std::string& text, bool writeBack, int currentYear, DateEntryState& state)
{
    const int yy = currentYear - 2000;
    const DateParts date = readDateParts(text);

    // The number is kept before any check: the stay checks compare against
    // whatever was last entered, valid or not.
    const std::string formatted = formatDateText(date.day, date.month, date.year);
    if (writeBack)
        text = formatted;
    const std::int64_t number = dateToNumber(formatted);
    if (state.kind == DateKind::ArrivalStart)
        state.arrivalNumber = number;
    else
        state.departureNumber = number;

    // Two-digit years from 70 up are last century; anything in between that is
    // more than a year ahead is a typing slip.
    if (date.year > yy + 1 && date.year < 70)
        return DateYearWrong;
    if (date.month > 12 || date.month < 1)
        return DateNoSuchMonth;
    if (date.day > allowedDays(date.month, currentYear, date.year))
        return DateDayNotInMonth;
    if (date.day < 1 || date.month < 1)
        return DateNoSuchYear;
    if (state.kind == DateKind::DepartureEnd && state.arrivalNumber > state.departureNumber)
        return DateDepartureBeforeArrival;
    if (state.kind != DateKind::DepartureEnd)
        return DateOk;
    if (state.departureNumber - state.arrivalNumber > threeWeeksInSeconds)
        return DateStayTooLong;
    return DateOk;
}

std::string_view dateErrorMessage(int code)
{
    if (code < 0 || code >= static_cast<int>(dateErrorMessages.size()))
        return {};
    return dateErrorMessages[static_cast<std::size_t>(code)];
}

std::string_view dateKindLabel(DateKind kind)
{
    switch (kind) {
    case DateKind::ArrivalStart:
        return "Arrival/Start date";
    case DateKind::DepartureEnd:
        return "Departure/End date";
    case DateKind::LastVaccination:
        return "Last Vac Date";
    }
    return {};
}

} // namespace purrlodge
