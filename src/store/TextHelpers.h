#pragma once

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

// The leading integer of a text as the C library's atoi reads it (blanks, an
// optional sign, digits); 0 when there is none.
[[nodiscard]] int leadingInt(std::string_view text);
// The leading number of a text as atof reads it in the "C" locale; 0 when
// there is none.
[[nodiscard]] double leadingDouble(std::string_view text);

} // namespace purrlodge
