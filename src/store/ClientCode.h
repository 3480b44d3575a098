#pragma once

#include <functional>
#include <string>
#include <string_view>

namespace purrlodge {

class RandomDraw;

inline constexpr std::size_t clientCodeLength = 8;

// Makes a new client code: the first five characters of the surname, then the
// first name, then eight random digits when that is still short, cut to eight
// characters. Characters that cannot stand in a file name become '_'. While
// isTaken says the code is in use, the last two characters become two random
// capital letters; should the draws start repeating, the letter pairs are
// walked in order instead, so the search always ends. Returns an empty text
// only when all 676 pairs are taken.
[[nodiscard]] std::string makeClientCode(std::string_view surname, std::string_view firstName,
                                         RandomDraw& draw,
                                         const std::function<bool(std::string_view)>& isTaken);

// Whether a character can stand in a file name on every platform we run on.
[[nodiscard]] bool isFileNameSafe(char c);

// Whether a code read from an index or a record may name a client's files:
// one to eight characters, each safe in a file name, and no "..".
[[nodiscard]] bool isSafeClientCode(std::string_view code);

} // namespace purrlodge
