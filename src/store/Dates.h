#pragma once

#include <cstdint>
#include <string>
#include <string_view>

#include "ports/Clock.h"

// Dates as the cattery types and stores them: text "dd/mm/yy" in records and
// dialogs, and seconds since 1 January 1970 (noon UTC of the day) for arithmetic.
// Every form and report goes through these helpers; none does its own date sums.
// Text is Windows-1252 bytes; nothing here depends on the process locale.

namespace purrlodge {

inline constexpr std::int64_t secondsPerDay = 86400;
// The program's year is always 365 days, for ages and validity periods alike.
inline constexpr std::int64_t secondsPerYear = 365 * secondsPerDay;

// ---- Reading and converting (Dates.cpp) ----

// Day, month and year as typed, each read by its leading numeric text.
struct DateParts {
    int day = 0;
    int month = 0;
    int year = 0;
};

// Splits "day/month/year": the day before the first "/", the month between the
// first and second, the year after the second. Each part is read atoi-style
// (leading blanks, optional sign, digits; 0 when there are none) and a missing
// part reads as 0.
[[nodiscard]] DateParts readDateParts(std::string_view text);

// 1 for a Gregorian leap year: divisible by 4 and not by 100, or by 400.
[[nodiscard]] bool isLeapYear(int year);

// Days in a month (31, 28, 31, 30, ...), February 29 when `leapYear` is set;
// 0 for a month outside 1..12.
[[nodiscard]] int monthLength(int month1to12, bool leapYear);

// Seconds since 1970 for noon UTC of a day/month/two-digit-year text. A year
// below 50 is 20yy, otherwise 19yy. Out-of-range days and months still give a
// number (validation converts before it checks): day 0 is the day before the
// 1st, month 0 counts as January and months past 12 count a whole year.
[[nodiscard]] std::int64_t dateToNumber(std::string_view ddmmyy);

// Days from the first date to the second counting both ends: the same day is 1,
// consecutive days are 2. In 64 bits: a damaged date's year takes the count
// far past what an int holds.
[[nodiscard]] std::int64_t dayCount(std::string_view first, std::string_view second);

// Years from `year` to `currentYear`, in 64 bits so that any stored year of
// birth gives its number.
[[nodiscard]] std::int64_t yearsSince(int year, int currentYear);

// Whole 365-day years from t to now; -1 when t < 1 (no date recorded).
[[nodiscard]] int ageFromNumber(std::int64_t t, std::int64_t now);

// ---- Text forms (Dates.cpp) ----

// "%02d/%02d/%02d": the form dates are stored and shown in.
[[nodiscard]] std::string formatDateText(int day, int month, int year);

// "%02d/%02d/%02d" of the text's day, month and year; with 2 parts the text is
// "day/month" and the year is written as 1.
[[nodiscard]] std::string normaliseDate(int parts, std::string_view text);

// 1 when the text holds more "/" than expected, -1 when fewer. Otherwise 0, and
// the text becomes "%02d/%02d/%02d" of its day, month and year, where a
// four-digit year above 2000 loses 2000 (2000 itself stays "2000").
int countCheckAndNormalise(std::string& text, int expectedSlashes);

// The weekday, in the clock's local calendar, of the noon number of a date text:
// the full name when `full` is set, else the short form ("Thur" for Thursday).
[[nodiscard]] std::string weekdayName(bool full, std::string_view dateText, const Clock& clock);

// "on Thursday 23th April 2009": the local date of t for backup notes and lists.
[[nodiscard]] std::string longDate(std::int64_t t, const Clock& clock);

// "mm/yy": the local month and two-figure year of t, as a cat's last
// vaccination is shown.
[[nodiscard]] std::string monthAndYearText(std::int64_t t, const Clock& clock);

// "%02d:%02d hrs" of the local time of t.
[[nodiscard]] std::string timeOfDayText(std::int64_t t, const Clock& clock);

// ---- Calendar names (CalendarNames.cpp) ----

// Weekday 0 is Sunday; out-of-range values give an empty name.
[[nodiscard]] std::string_view weekdayFullName(int weekday);
[[nodiscard]] std::string_view weekdayShortName(int weekday);
[[nodiscard]] std::string_view monthName(int month1to12);

// The suffix the program writes after a day of the month, decided by the last
// digit alone: 1 "st", 2 "nd", anything else "th". So 3 is "3th", 11 "11st" and
// 12 "12nd"; "rd" never appears. Printed accounts and notes rely on this form.
[[nodiscard]] std::string daySuffix(int day);

// ---- Validating a typed date (DateValidation.cpp) ----

// Which date the person is entering.
enum class DateKind { ArrivalStart = 0, DepartureEnd = 1, LastVaccination = 2 };

// The date-entry state the entry dialogs share for the whole session: the kind
// being entered and the numbers of the last arrival and departure validated, so a
// departure can be checked against its arrival.
struct DateEntryState {
    DateKind kind = DateKind::ArrivalStart;
    std::int64_t arrivalNumber = 0;
    std::int64_t departureNumber = 0;
};

// Validation codes. The validator returns 0-4, 6 and 7; 5, 8 and 9 are raised
// by the entry forms themselves and share the message table.
enum DateError : int {
    DateOk = 0,
    DateYearWrong = 1,
    DateDayNotInMonth = 2,
    DateNoSuchMonth = 3,
    DateNoSuchYear = 4,
    DateYearBackdated = 5,
    DateDepartureBeforeArrival = 6,
    DateStayTooLong = 7,
    DateBirthSuspicious = 8,
    DateEntriesWrong = 9,
};

// Checks a typed date in a fixed order and returns the first failure's code.
// Before any check the date is formatted "%02d/%02d/%02d" (written back into
// `text` when `writeBack` is set) and its number is stored in `state`: as the
// arrival number for an arrival, otherwise as the departure number, even when a
// check then fails.
int validateDate(std::string& text, bool writeBack, int currentYear, DateEntryState& state);

// The message for a validation code; empty for 0 and for unknown codes.
[[nodiscard]] std::string_view dateErrorMessage(int code);

// "Arrival/Start date", "Departure/End date" or "Last Vac Date".
[[nodiscard]] std::string_view dateKindLabel(DateKind kind);

} // namespace purrlodge
