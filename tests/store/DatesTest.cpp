#include "store/Dates.h"

#include <climits>
#include <gtest/gtest.h>
#include <string>

#include "store/CivilCalendar.h"
#include "support/FakePorts.h"

namespace purrlodge {
namespace {

std::int64_t noonUtc(int year, int month, int day)
{
    return daysFromCivil(year, month, day) * 86400 + 43200;
}

TEST(ValidateOneDate, GivesTheFirstFailingRule)
{
    struct Case {
        const char* typed;
        int currentYear, expected;
    };
    // Year before month before day. A year up to one ahead is this century,
    // from 70 on the last. February has 28 days, one more for a typed leap
    // year and one more again when the current year is a leap year.
    const Case cases[] = {
        {"5/6/10", 2009, 0},  {"5/6/11", 2009, 1},  {"5/6/69", 2009, 1},  {"5/6/70", 2009, 0},
        {"5/6/69", 2068, 0},  {"5/6/70", 2068, 0},  {"5/6/69", 2067, 1},  {"40/13/11", 2009, 1},
        {"5/13/09", 2009, 3}, {"0/0/09", 2009, 3},  {"31/4/09", 2009, 2}, {"0/5/09", 2009, 4},
        {"29/2/09", 2009, 2}, {"29/2/08", 2009, 0}, {"29/2/23", 2024, 0}, {"30/2/23", 2024, 2},
        {"30/2/24", 2024, 0}, {"31/2/24", 2024, 2}, {"31/12/09", 2009, 0}};
    for (const auto& [typed, currentYear, expected] : cases) {
        DateEntryState state;
        std::string text = typed;
        EXPECT_EQ(validateDate(text, false, currentYear, state), expected)
            << typed << " in " << currentYear;
    }
}

TEST(ValidateStayDates, DepartureIsCheckedAgainstTheArrivalNumberKeptBeforeAnyCheck)
{
    DateEntryState state;
    const auto enter = [&state](DateKind kind, std::string text) {
        state.kind = kind;
        return validateDate(text, false, 2009, state);
    };
    ASSERT_EQ(enter(DateKind::ArrivalStart, "1/3/09"), 0);
    EXPECT_EQ(enter(DateKind::DepartureEnd, "1/3/09"), 0);
    EXPECT_EQ(enter(DateKind::DepartureEnd, "28/2/09"), 6);
    EXPECT_EQ(enter(DateKind::DepartureEnd, "22/3/09"), 0); // 21 days on
    EXPECT_EQ(enter(DateKind::DepartureEnd, "23/3/09"), 7); // 22 days on
    EXPECT_EQ(enter(DateKind::LastVaccination, "23/3/10"), 0);

    EXPECT_EQ(enter(DateKind::ArrivalStart, "31/4/09"), 2);
    EXPECT_EQ(state.arrivalNumber, noonUtc(2009, 5, 1));
    EXPECT_EQ(enter(DateKind::LastVaccination, "5/13/09"), 3);
    EXPECT_EQ(state.departureNumber, noonUtc(2010, 1, 5));
    EXPECT_EQ(state.arrivalNumber, noonUtc(2009, 5, 1));

    std::string text = "5/6/9", written = text;
    validateDate(text, false, 2009, state);
    validateDate(written, true, 2009, state);
    EXPECT_EQ(text + " " + written, "5/6/9 05/06/09");
}

TEST(DateNumbers, AreNoonUtcWithAFiftyYearWindowAndCountDaysAndYears)
{
    for (std::int64_t day = daysFromCivil(1950, 1, 1); day <= daysFromCivil(2049, 12, 31); ++day) {
        const CivilTime civil = civilFromSeconds(day * 86400);
        const std::string text = formatDateText(civil.day, civil.month, civil.year % 100);
        ASSERT_EQ(dateToNumber(text), day * 86400 + 43200) << text;
    }
    EXPECT_EQ(daysFromCivil(2000, 1, INT_MAX) - daysFromCivil(2000, 1, 1), INT_MAX - 1);
    EXPECT_GT(daysFromCivil(2000, INT_MAX, 1), daysFromCivil(2000, 12, 1)) << "any month";
    EXPECT_LT(daysFromCivil(2000, INT_MIN, INT_MIN), daysFromCivil(1900, 1, 1));
    EXPECT_EQ(dateToNumber("00/03/24"), noonUtc(2024, 2, 29));
    EXPECT_EQ(dateToNumber("05/00/09"), noonUtc(2009, 1, 5));
    EXPECT_EQ(dateToNumber("01/99/09"), noonUtc(2010, 1, 1));
    EXPECT_EQ(dateToNumber("1"), noonUtc(2000, 1, 1));
    EXPECT_GT(dateToNumber("1/1/99999999999"), dateToNumber("1/1/99")) << "saturated";
    EXPECT_TRUE(isLeapYear(2000) && isLeapYear(2024) && !isLeapYear(1900) && !isLeapYear(2023));
    EXPECT_EQ(dayCount("1/3/09", "1/3/09"), 1);
    EXPECT_EQ(dayCount("30/12/99", "2/1/00"), 4);
    EXPECT_EQ(yearsSince(2010, 2024), 14);
    EXPECT_EQ(yearsSince(INT_MIN, 2024), 2024 + 2147483648LL) << "any stored year";
    EXPECT_EQ(ageFromNumber(0, 1'000'000'000), -1);
    EXPECT_EQ(ageFromNumber(1, 31536000), 0);
    EXPECT_EQ(ageFromNumber(1, 31536001), 1) << "a year is 365 days";
}

TEST(DateText, NormalisedLongAndLocal)
{
    EXPECT_EQ(normaliseDate(3, "1/2/3"), "01/02/03");
    EXPECT_EQ(normaliseDate(2, "7/12"), "07/12/01");
    const auto checked = [](std::string text) {
        const int result = countCheckAndNormalise(text, 2);
        return std::to_string(result) + " " + text;
    };
    EXPECT_EQ(checked("1/2/2001"), "0 01/02/01");
    EXPECT_EQ(checked("1/2/2000"), "0 01/02/2000");
    EXPECT_EQ(checked("1/2"), "-1 1/2");
    EXPECT_EQ(checked("1/2/3/4"), "1 1/2/3/4");

    testing::FakeClock clock;
    EXPECT_EQ(longDate(dateToNumber("23/04/09"), clock), "on Thursday 23th April 2009");
    EXPECT_EQ(weekdayName(false, "23/4/09", clock), "Thur");
    EXPECT_EQ(weekdayName(true, "1/1/70", clock), "Thursday");
    std::string suffixes; // from the last digit alone
    for (int day : {1, 2, 3, 4, 11, 12, 13, 22, 31})
        suffixes += daySuffix(day) + " ";
    EXPECT_EQ(suffixes, "st nd th th st nd th nd st ");
    std::string months; // out-of-range months, INT_MIN too, have no name
    for (int month : {1, 12, 0, 13, INT_MIN, INT_MAX})
        months += std::string(monthName(month)) + " ";
    EXPECT_EQ(months, "January December     ");
    clock.setUtc(2009, 4, 23, 9, 5);
    EXPECT_EQ(timeOfDayText(clock.now(), clock), "09:05 hrs");
    EXPECT_EQ(monthAndYearText(clock.now(), clock), "04/09");

    // A local calendar thirteen hours behind UTC sees the noon number on the day before.
    struct FarWestClock : testing::FakeClock {
        CivilTime toLocal(std::int64_t t) const override { return civilFromSeconds(t - 13 * 3600); }
    };
    EXPECT_EQ(weekdayName(false, "23/4/09", FarWestClock{}), "Wed");
}

} // namespace
} // namespace purrlodge
