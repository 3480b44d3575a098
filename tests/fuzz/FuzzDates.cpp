// Bytes as date texts, one a line, as records hold them and people type them
// ("dd/mm/yy", damaged or not): every reading, conversion, text form and
// validation of store/Dates.h, each pair of lines as an arrival and a
// departure, and the calendar conversions on what the texts name.

#include <cstddef>
#include <cstdint>
#include <string>
#include <vector>

#include "fuzz/FuzzSupport.h"
#include "store/CivilCalendar.h"
#include "store/Dates.h"
#include "support/FakePorts.h"

namespace {

using namespace purrlodge;

constexpr std::size_t linesRead = 6;

void useOneText(const std::string& text, const Clock& clock, int currentYear)
{
    const DateParts parts = readDateParts(text);
    const bool leap = isLeapYear(parts.year);
    static_cast<void>(monthLength(parts.month, leap));
    static_cast<void>(yearsSince(parts.year, currentYear));
    static_cast<void>(formatDateText(parts.day, parts.month, parts.year));
    static_cast<void>(weekdayFullName(parts.day));
    static_cast<void>(weekdayShortName(parts.month));
    static_cast<void>(monthName(parts.month));
    static_cast<void>(daySuffix(parts.day));
    static_cast<void>(normaliseDate(2, text));
    static_cast<void>(normaliseDate(3, text));
    for (const int slashes : {1, 2}) {
        std::string typed = text;
        static_cast<void>(countCheckAndNormalise(typed, slashes));
    }

    const std::int64_t number = dateToNumber(text);
    static_cast<void>(ageFromNumber(number, clock.now()));
    static_cast<void>(weekdayName(true, text, clock));
    static_cast<void>(weekdayName(false, text, clock));
    static_cast<void>(longDate(number, clock));
    static_cast<void>(monthAndYearText(number, clock));
    static_cast<void>(timeOfDayText(number, clock));
    static_cast<void>(civilFromSeconds(number));
    static_cast<void>(daysFromCivil(parts.year, parts.month, parts.day));
}

} // namespace

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size)
{
    const std::vector<std::string> lines =
        fuzzing::linesOf({reinterpret_cast<const char*>(data), size}, linesRead);
    testing::FakeClock clock;
    clock.setUtc(2024, 6, 15);

    for (const int currentYear : {1999, 2024, 2100}) {
        for (const std::string& line : lines)
            useOneText(line, clock, currentYear);

        // Each line in turn as every kind of date, the arrival kept for the
        // departure after it, with and without writing the text back.
        DateEntryState state;
        for (std::size_t at = 0; at < lines.size(); ++at) {
            state.kind = static_cast<DateKind>(at % 3);
            std::string text = lines[at];
            const int code = validateDate(text, at % 2 == 0, currentYear, state);
            static_cast<void>(dateErrorMessage(code));
            static_cast<void>(dateKindLabel(state.kind));
        }
    }
    for (std::size_t at = 0; at + 1 < lines.size(); ++at)
        static_cast<void>(dayCount(lines[at], lines[at + 1]));
    return 0;
}
