#include "store/Dates.h"

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
    // The year is checked before the month, the month before the day. February
    // has 28 days, one more for a typed leap year, and one more again when the
    // current year is a leap year.
    const Case cases[] = {{"31/4/09", 2009, 2}, {"0/5/09", 2009, 4},   {"5/13/09", 2009, 3},
                          {"5/6/11", 2009, 1},  {"5/6/10", 2009, 0},   {"5/6/85", 2009, 0},
                          {"5/6/69", 2009, 1},  {"40/13/11", 2009, 1}, {"0/0/09", 2009, 3},
                          {"", 2009, 3},        {"29/2/09", 2009, 2},  {"29/2/08", 2009, 0},
                          {"29/2/23", 2024, 0}, {"30/2/23", 2024, 2},  {"30/2/24", 2024, 0},
                          {"31/2/24", 2024, 2}, {"31/6/09", 2009, 2},  {"31/12/09", 2009, 0}};
    for (const auto& [typed, currentYear, expected] : cases) {
        DateEntryState state;
        std::string text = typed;
        EXPECT_EQ(validateDate(text, false, currentYear, state), expected) << typed;
    }
}

class StayDates : public ::testing::Test {
protected:
    int enter(DateKind kind, std::string text)
    {
        state.kind = kind;
        return validateDate(text, false, 2009, state);
    }

    DateEntryState state;
};

TEST_F(StayDates, DepartureIsCheckedAgainstTheArrival)
{
    ASSERT_EQ(enter(DateKind::ArrivalStart, "1/3/09"), 0);
    EXPECT_EQ(enter(DateKind::DepartureEnd, "1/3/09"), 0);
    EXPECT_EQ(enter(DateKind::DepartureEnd, "28/2/09"), 6);
    EXPECT_EQ(enter(DateKind::DepartureEnd, "22/3/09"), 0); // 21 days on
    EXPECT_EQ(enter(DateKind::DepartureEnd, "23/3/09"), 7); // 22 days on
    EXPECT_EQ(enter(DateKind::LastVaccination, "23/3/10"), 0);
}

TEST_F(StayDates, NumberIsKeptBeforeAnyCheck)
{
    EXPECT_EQ(enter(DateKind::ArrivalStart, "31/4/09"), 2);
    EXPECT_EQ(state.arrivalNumber, noonUtc(2009, 5, 1));
    EXPECT_EQ(enter(DateKind::LastVaccination, "5/13/09"), 3);
    EXPECT_EQ(state.departureNumber, noonUtc(2010, 1, 5));
    EXPECT_EQ(state.arrivalNumber, noonUtc(2009, 5, 1));
}

TEST_F(StayDates, WritesBackTheTwoDigitFormOnlyWhenAsked)
{
    std::string text = "5/6/9";
    validateDate(text, false, 2009, state);
    EXPECT_EQ(text, "5/6/9");
    validateDate(text, true, 2009, state);
    EXPECT_EQ(text, "05/06/09");
}

TEST(DateNumbers, AreNoonUtcWithAFiftyYearWindow)
{
    EXPECT_EQ(dateToNumber("01/01/70"), 43200);
    EXPECT_EQ(dateToNumber("31/12/49"), noonUtc(2049, 12, 31));
    EXPECT_EQ(dateToNumber("01/01/50"), noonUtc(1950, 1, 1));
    for (std::int64_t day = daysFromCivil(1950, 1, 1); day <= daysFromCivil(2049, 12, 31); ++day) {
        const CivilTime civil = civilFromSeconds(day * 86400);
        const std::string text = formatDateText(civil.day, civil.month, civil.year % 100);
        ASSERT_EQ(dateToNumber(text), day * 86400 + 43200) << text;
    }
}

TEST(DateNumbers, OutOfRangePartsRollOver)
{
    EXPECT_EQ(dateToNumber("00/03/24"), noonUtc(2024, 2, 29));
    EXPECT_EQ(dateToNumber("05/00/09"), noonUtc(2009, 1, 5));
    EXPECT_EQ(dateToNumber("01/99/09"), noonUtc(2010, 1, 1));
    EXPECT_EQ(dateToNumber("1"), noonUtc(2000, 1, 1));
    // Saturated huge parts must not overflow.
    EXPECT_GT(dateToNumber("1/1/99999999999"), dateToNumber("1/1/99"));
}

TEST(DateNumbers, LeapYearsCountsAndAges)
{
    EXPECT_TRUE(isLeapYear(2000) && isLeapYear(2024));
    EXPECT_FALSE(isLeapYear(1900) || isLeapYear(2023));

    EXPECT_EQ(dayCount("1/3/09", "1/3/09"), 1);
    EXPECT_EQ(dayCount("1/3/09", "2/3/09"), 2);
    EXPECT_EQ(dayCount("28/2/24", "1/3/24"), 3);
    EXPECT_EQ(dayCount("30/12/99", "2/1/00"), 4);

    EXPECT_EQ(ageFromNumber(0, 1'000'000'000), -1);
    EXPECT_EQ(ageFromNumber(1, 31536000), 0);
    EXPECT_EQ(ageFromNumber(1, 31536001), 1);
}

TEST(DateText, NormalisingAndCountCheck)
{
    EXPECT_EQ(normaliseDate(3, "1/2/3"), "01/02/03");
    EXPECT_EQ(normaliseDate(2, "7/12"), "07/12/01");

    std::string text = "1/2/2024";
    EXPECT_EQ(countCheckAndNormalise(text, 2), 0);
    EXPECT_EQ(text, "01/02/24");
    text = "1/2/2000";
    countCheckAndNormalise(text, 2);
    EXPECT_EQ(text, "01/02/2000");
    text = "1/2/1999";
    countCheckAndNormalise(text, 2);
    EXPECT_EQ(text, "01/02/1999");
    text = "1/2";
    EXPECT_EQ(countCheckAndNormalise(text, 2), -1);
    EXPECT_EQ(text, "1/2");
    text = "1/2/3/4";
    EXPECT_EQ(countCheckAndNormalise(text, 2), 1);
}

TEST(DateText, SuffixFollowsTheLastDigitOnly)
{
    const std::pair<int, const char*> cases[] = {{1, "st"},  {2, "nd"},  {3, "th"},
                                                 {4, "th"},  {11, "st"}, {21, "st"},
                                                 {22, "nd"}, {23, "th"}, {31, "st"}};
    for (const auto& [day, suffix] : cases)
        EXPECT_EQ(daySuffix(day), suffix) << day;
}

TEST(DateText, LongDateTimeAndWeekdays)
{
    testing::FakeClock clock;
    EXPECT_EQ(longDate(dateToNumber("23/04/09"), clock), "on Thursday 23th April 2009");
    EXPECT_EQ(weekdayName(false, "23/4/09", clock), "Thur");
    EXPECT_EQ(weekdayName(true, "1/1/70", clock), "Thursday");
    EXPECT_EQ(weekdayName(false, "5/7/09", clock), "Sun");
    clock.setUtc(2009, 4, 23, 9, 5);
    EXPECT_EQ(timeOfDayText(clock.now(), clock), "09:05 hrs");

    // A local calendar thirteen hours behind UTC sees the noon number on the day before.
    struct FarWestClock : testing::FakeClock {
        CivilTime toLocal(std::int64_t t) const override { return civilFromSeconds(t - 13 * 3600); }
    };
    EXPECT_EQ(weekdayName(false, "23/4/09", FarWestClock{}), "Wed");
}

} // namespace
} // namespace purrlodge
