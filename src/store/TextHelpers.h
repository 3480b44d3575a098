#pragma once

#include <cstdio>
#include <string>
#include <string_view>

namespace purrlodge {

// Text helpers over Windows-1252 bytes. Case changes know the 1252 letters,
// not only ASCII; nothing here depends on the process locale.

inline constexpr std::string_view lettersAndDigits =
    "abcdefghijklmnopqrstuvwxyzABCDEFGHIJKLMNOPQRSTUVWXYZ0123456789";

// Whether the text holds any ASCII letter or digit. A text without one counts
// as empty throughout the program.
[[nodiscard]] bool hasLetterOrDigit(std::string_view text);

// The text before the first separator, or the whole text when there is none.
[[nodiscard]] std::string textBefore(std::string_view text, std::string_view separator);
// The text after the first separator, or empty when there is none.
[[nodiscard]] std::string textAfter(std::string_view text, std::string_view separator);
// The text after the last separator, or the whole text when there is none.
[[nodiscard]] std::string textAfterLast(std::string_view text, std::string_view separator);

// Whether part occurs in text (an empty part always does), cases distinct.
[[nodiscard]] bool contains(std::string_view text, std::string_view part);

// The 0-based position of part in text, or -1.
[[nodiscard]] int substringIndex(std::string_view text, std::string_view part);

// Up to length characters from the 1-based position start; empty when start
// lies outside the text.
[[nodiscard]] std::string substring1(std::string_view text, int start, int length);

[[nodiscard]] std::string trimLeft(std::string_view text);
[[nodiscard]] std::string trimRight(std::string_view text);
[[nodiscard]] std::string trim(std::string_view text);

[[nodiscard]] char toUpper(char c);
[[nodiscard]] char toLower(char c);
[[nodiscard]] std::string toUpper(std::string_view text);
[[nodiscard]] std::string toLower(std::string_view text);
[[nodiscard]] bool equalsIgnoringCase(std::string_view a, std::string_view b);

[[nodiscard]] std::string reversed(std::string_view text);

// Character-set scans: the 0-based position of the first character that is in
// (or not in) the set, or -1.
[[nodiscard]] int firstInSet(std::string_view text, std::string_view set);
[[nodiscard]] int firstNotInSet(std::string_view text, std::string_view set);
// Whether every character of the text is in the set (true for an empty text).
[[nodiscard]] bool onlyCharactersOf(std::string_view text, std::string_view set);

// printf-style text of any length, for the program's own fixed formats only:
// record or typed text is passed as a value, never as the format. Numbers
// come out in the "C" locale, which the program keeps for LC_NUMERIC.
template <class... Values> [[nodiscard]] std::string formatted(const char* format, Values... values)
{
    const int length = std::snprintf(nullptr, 0, format, values...);
    if (length <= 0)
        return {};
    std::string text(static_cast<std::size_t>(length) + 1, '\0');
    std::snprintf(text.data(), text.size(), format, values...);
    text.pop_back();
    return text;
}

// The leading integer of a text as the C library's atoi reads it (blanks, an
// optional sign, digits); 0 when there is none.
[[nodiscard]] int leadingInt(std::string_view text);
// The leading number of a text as atof reads it in the "C" locale; 0 when
// there is none.
[[nodiscard]] double leadingDouble(std::string_view text);

} // namespace purrlodge
