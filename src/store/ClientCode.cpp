#include "store/ClientCode.h"

#include <set>
#include <utility>

#include "store/RandomDraw.h"

namespace purrlodge {

bool isFileNameSafe(char c)
{
    const auto u = static_cast<unsigned char>(c);
    if (u < 0x20 || u == 0x7F)
        return false;
    return std::string_view("/\\:*?\"<>|").find(c) == std::string_view::npos;
}

bool isSafeClientCode(std::string_view code)
{
    if (code.empty() || code.size() > clientCodeLength || code.find("..") != std::string_view::npos)
        return false;
    for (const char c : code) {
        if (!isFileNameSafe(c))
            return false;
    }
    return true;
}

std::string makeClientCode(std::string_view surname, std::string_view firstName, RandomDraw& draw,
                           const std::function<bool(std::string_view)>& isTaken)
{
    std::string digits;
    for (int i = 0; i < 8; ++i)
        digits += static_cast<char>('0' + draw.upTo(9));

    // A fresh buffer each time, so no earlier code's characters survive.
    std::string code(surname.substr(0, 5));
    code += firstName;
    if (code.size() < clientCodeLength)
        code += digits;
    code.resize(clientCodeLength);
    for (char& c : code) {
        if (!isFileNameSafe(c))
            c = '_';
    }

    std::set<std::pair<char, char>> triedPairs;
    while (isTaken(code)) {
        const char first = static_cast<char>('A' + draw.upTo(25));
        const char second = static_cast<char>('A' + draw.upTo(25));
        if (triedPairs.insert({first, second}).second) {
            code[6] = first;
            code[7] = second;
            continue;
        }
        // The generator has started going round in a circle: try every pair in turn.
        for (char a = 'A'; a <= 'Z'; ++a) {
            for (char b = 'A'; b <= 'Z'; ++b) {
                code[6] = a;
                code[7] = b;
                if (!isTaken(code))
                    return code;
            }
        }
        return {}; // every pair is taken
    }
    return code;
}

} // namespace purrlodge
