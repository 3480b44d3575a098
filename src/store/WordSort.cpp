#include "store/WordSort.h"

#include <cstdint>
#include <string>
#include <vector>

#include "store/TextHelpers.h"

namespace purrlodge {

namespace {

// The weights of one character at the three levels of comparison.
struct Weights {
    int primary;    // symbols < digits < letters (a..z, case- and accent-blind)
    int accent;     // 0 for a plain letter, else which accent it bears
    int letterCase; // 0 lower case, 1 upper case
};

// The plain letter under each 1252 accented letter from 0xC0 to 0xFF, or 0
// for the two non-letters (× and ÷) in that range.
constexpr char baseLetters[] = "AAAAAAACEEEEIIIIDNOOOOO\0OUUUUYTsaaaaaaaceeeeiiiidnooooo\0ouuuuyty";

bool isIgnored(char c)
{
    return c == '\'' || c == '-';
}

Weights weigh(char c)
{
    const auto u = static_cast<unsigned char>(c);
    enum { symbolBase = 0, digitBase = 300, letterBase = 400 };
    if (u >= '0' && u <= '9')
        return {digitBase + (u - '0'), 0, 0};
    if ((u >= 'a' && u <= 'z') || (u >= 'A' && u <= 'Z')) {
        const bool upper = u <= 'Z';
        return {letterBase + (toLower(c) - 'a'), 0, upper ? 1 : 0};
    }
    if (u >= 0xC0 && baseLetters[u - 0xC0] != 0) {
        const char base = baseLetters[u - 0xC0];
        const bool upper = u < 0xE0 && u != 0xDF; // ß has no capital
        return {letterBase + (toLower(base) - 'a'), 1 + (u & 0x1F), upper ? 1 : 0};
    }
    switch (u) { // the other 1252 letters: Š š Œ œ Ž ž Ÿ
    case 0x8A:
        return {letterBase + ('s' - 'a'), 40, 1};
    case 0x9A:
        return {letterBase + ('s' - 'a'), 40, 0};
    case 0x8C:
        return {letterBase + ('o' - 'a'), 40, 1};
    case 0x9C:
        return {letterBase + ('o' - 'a'), 40, 0};
    case 0x8E:
        return {letterBase + ('z' - 'a'), 40, 1};
    case 0x9E:
        return {letterBase + ('z' - 'a'), 40, 0};
    case 0x9F:
        return {letterBase + ('y' - 'a'), 40, 1};
    default:
        return {symbolBase + u, 0, 0};
    }
}

std::vector<Weights> weighAll(std::string_view text)
{
    std::vector<Weights> weights;
    weights.reserve(text.size());
    for (char c : text) {
        if (!isIgnored(c))
            weights.push_back(weigh(c));
    }
    return weights;
}

template <class Level>
int compareLevel(const std::vector<Weights>& a, const std::vector<Weights>& b, Level level)
{
    const std::size_t common = a.size() < b.size() ? a.size() : b.size();
    for (std::size_t i = 0; i < common; ++i) {
        const int difference = level(a[i]) - level(b[i]);
        if (difference != 0)
            return difference;
    }
    return 0;
}

int sign(long long value)
{
    return (value > 0) - (value < 0);
}

} // namespace

int compareWordSort(std::string_view a, std::string_view b)
{
    const auto weightsA = weighAll(a);
    const auto weightsB = weighAll(b);

    if (const int primary =
            compareLevel(weightsA, weightsB, [](const Weights& w) { return w.primary; }))
        return sign(primary);
    if (weightsA.size() != weightsB.size())
        return weightsA.size() < weightsB.size() ? -1 : 1;
    if (const int accent =
            compareLevel(weightsA, weightsB, [](const Weights& w) { return w.accent; }))
        return sign(accent);
    if (const int letterCase =
            compareLevel(weightsA, weightsB, [](const Weights& w) { return w.letterCase; }))
        return sign(letterCase);

    // Only the ignored characters differ: the text without them, or with them
    // later, comes first; then plain byte order so that different texts never
    // compare equal.
    for (std::size_t i = 0; i < a.size() && i < b.size(); ++i) {
        if (a[i] == b[i])
            continue;
        if (isIgnored(a[i]) != isIgnored(b[i]))
            return isIgnored(a[i]) ? 1 : -1;
        return static_cast<unsigned char>(a[i]) < static_cast<unsigned char>(b[i]) ? -1 : 1;
    }
    return sign(static_cast<long long>(a.size()) - static_cast<long long>(b.size()));
}

} // namespace purrlodge
