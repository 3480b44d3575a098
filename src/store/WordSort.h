#pragma once

#include <string_view>

namespace purrlodge {

// Compares two Windows-1252 texts in word-sort order, the order in which the
// client index has always been kept:
//  1. letters compare without regard to case or accent, apostrophes and
//     hyphens are ignored, other symbols come before digits, digits before
//     letters, and a shorter text before a longer one it begins;
//  2. ties go to the text without accents at the first difference;
//  3. then to the text with lower case at the first difference;
//  4. then to the text whose apostrophes and hyphens come later or not at all.
// Returns a negative number, zero or a positive number as a sorts before, with
// or after b.
[[nodiscard]] int compareWordSort(std::string_view a, std::string_view b);

} // namespace purrlodge
