#include "store/TextHelpers.h"

#include <algorithm>
#include <charconv>
#include <climits>

namespace purrlodge {

namespace {

bool isBlank(char c)
{
    return c == ' ' || c == '\t' || c == '\n' || c == '\r' || c == '\v' || c == '\f';
}

bool isDigit(char c)
{
    return c >= '0' && c <= '9';
}

} // namespace

bool hasLetterOrDigit(std::string_view text)
{
    return text.find_first_of(lettersAndDigits) != std::string_view::npos;
}

std::string textBefore(std::string_view text, std::string_view separator)
{
    return std::string(text.substr(0, text.find(separator)));
}

std::string textAfter(std::string_view text, std::string_view separator)
{
    const auto at = text.find(separator);
    return at == std::string_view::npos ? std::string()
                                        : std::string(text.substr(at + separator.size()));
}

std::string textAfterLast(std::string_view text, std::string_view separator)
{
    const auto at = text.rfind(separator);
    return at == std::string_view::npos ? std::string(text)
                                        : std::string(text.substr(at + separator.size()));
}

bool contains(std::string_view text, std::string_view part)
{
    return text.find(part) != std::string_view::npos;
}

int substringIndex(std::string_view text, std::string_view part)
{
    const auto at = text.find(part);
    return at == std::string_view::npos ? -1 : static_cast<int>(at);
}

std::string substring1(std::string_view text, int start, int length)
{
    if (start < 1 || length <= 0 || static_cast<std::size_t>(start) > text.size())
        return {};
    return std::string(
        text.substr(static_cast<std::size_t>(start - 1), static_cast<std::size_t>(length)));
}

std::string trimLeft(std::string_view text)
{
    std::size_t first = 0;
    while (first < text.size() && isBlank(text[first]))
        ++first;
    return std::string(text.substr(first));
}

std::string trimRight(std::string_view text)
{
    std::size_t end = text.size();
    while (end > 0 && isBlank(text[end - 1]))
        --end;
    return std::string(text.substr(0, end));
}

std::string trim(std::string_view text)
{
    return trimRight(trimLeft(text));
}

char toUpper(char c)
{
    const auto u = static_cast<unsigned char>(c);
    if (u >= 'a' && u <= 'z')
        return static_cast<char>(u - 32);
    // 1252: à..þ map to À..Þ (except the division sign); š, œ, ž, ÿ have their own capitals.
    if (u >= 0xE0 && u <= 0xFE && u != 0xF7)
        return static_cast<char>(u - 32);
    switch (u) {
    case 0x9A:
        return static_cast<char>(0x8A);
    case 0x9C:
        return static_cast<char>(0x8C);
    case 0x9E:
        return static_cast<char>(0x8E);
    case 0xFF:
        return static_cast<char>(0x9F);
    default:
        return c;
    }
}

char toLower(char c)
{
    const auto u = static_cast<unsigned char>(c);
    if (u >= 'A' && u <= 'Z')
        return static_cast<char>(u + 32);
    if (u >= 0xC0 && u <= 0xDE && u != 0xD7)
        return static_cast<char>(u + 32);
    switch (u) {
    case 0x8A:
        return static_cast<char>(0x9A);
    case 0x8C:
        return static_cast<char>(0x9C);
    case 0x8E:
        return static_cast<char>(0x9E);
    case 0x9F:
        return static_cast<char>(0xFF);
    default:
        return c;
    }
}

std::string toUpper(std::string_view text)
{
    std::string result(text);
    std::transform(result.begin(), result.end(), result.begin(), [](char c) { return toUpper(c); });
    return result;
}

std::string toLower(std::string_view text)
{
    std::string result(text);
    std::transform(result.begin(), result.end(), result.begin(), [](char c) { return toLower(c); });
    return result;
}

bool equalsIgnoringCase(std::string_view a, std::string_view b)
{
    return a.size() == b.size() && std::equal(a.begin(), a.end(), b.begin(), [](char x, char y) {
               return toUpper(x) == toUpper(y);
           });
}

std::string reversed(std::string_view text)
{
    return std::string(text.rbegin(), text.rend());
}

int firstInSet(std::string_view text, std::string_view set)
{
    const auto at = text.find_first_of(set);
    return at == std::string_view::npos ? -1 : static_cast<int>(at);
}

int firstNotInSet(std::string_view text, std::string_view set)
{
    const auto at = text.find_first_not_of(set);
    return at == std::string_view::npos ? -1 : static_cast<int>(at);
}

bool onlyCharactersOf(std::string_view text, std::string_view set)
{
    return firstNotInSet(text, set) == -1;
}

int leadingInt(std::string_view text)
{
    std::size_t at = 0;
    while (at < text.size() && isBlank(text[at]))
        ++at;
    bool negative = false;
    if (at < text.size() && (text[at] == '+' || text[at] == '-'))
        negative = text[at++] == '-';
    long long value = 0;
    while (at < text.size() && isDigit(text[at])) {
        value = value * 10 + (text[at++] - '0');
        if (value > INT_MAX) // atoi's overflow is undefined; stop at the limit instead
            return negative ? INT_MIN : INT_MAX;
    }
    return static_cast<int>(negative ? -value : value);
}

double leadingDouble(std::string_view text)
{
    std::size_t at = 0;
    while (at < text.size() && isBlank(text[at]))
        ++at;
    bool negative = false;
    if (at < text.size() && (text[at] == '+' || text[at] == '-'))
        negative = text[at++] == '-';
    // from_chars reads the "C" locale's form whatever the process locale is;
    // it takes no sign of its own after ours.
    if (at < text.size() && (text[at] == '+' || text[at] == '-'))
        return 0.0;
    double value = 0.0;
    const auto result = std::from_chars(text.data() + at, text.data() + text.size(), value,
                                        std::chars_format::general);
    if (result.ec == std::errc::result_out_of_range)
        return 0.0;
    if (result.ec != std::errc())
        return 0.0;
    return negative ? -value : value;
}

} // namespace purrlodge
