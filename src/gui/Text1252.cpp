#include "gui/Text1252.h"

#include <array>

namespace purrlodge {

namespace {

// The characters 1252 puts at 0x80..0x9F; 0 marks a byte it leaves undefined,
// which decodes as the control character of the same number.
constexpr std::array<char16_t, 32> highControlRange = {
    0x20AC, 0,      0x201A, 0x0192, 0x201E, 0x2026, 0x2020, 0x2021, // 0x80
    0x02C6, 0x2030, 0x0160, 0x2039, 0x0152, 0,      0x017D, 0,      // 0x88
    0,      0x2018, 0x2019, 0x201C, 0x201D, 0x2022, 0x2013, 0x2014, // 0x90
    0x02DC, 0x2122, 0x0161, 0x203A, 0x0153, 0,      0x017E, 0x0178, // 0x98
};

char16_t decodeByte(unsigned char byte)
{
    if (byte >= 0x80 && byte <= 0x9F) {
        const char16_t mapped = highControlRange[byte - 0x80];
        return mapped != 0 ? mapped : char16_t(byte);
    }
    return char16_t(byte); // the rest of 1252 is Latin-1
}

char encodeCodePoint(char32_t codePoint)
{
    if (codePoint < 0x80 || (codePoint >= 0xA0 && codePoint <= 0xFF))
        return static_cast<char>(codePoint);
    for (std::size_t i = 0; i < highControlRange.size(); ++i) {
        const char16_t mapped = highControlRange[i];
        const char32_t expected = mapped != 0 ? mapped : char32_t(0x80 + i);
        if (codePoint == expected)
            return static_cast<char>(0x80 + i);
    }
    return '?';
}

} // namespace

QString fromWindows1252(std::string_view bytes)
{
    QString text;
    text.reserve(static_cast<qsizetype>(bytes.size()));
    for (const char byte : bytes)
        text.append(QChar(decodeByte(static_cast<unsigned char>(byte))));
    return text;
}

std::string toWindows1252(QStringView text)
{
    std::string bytes;
    bytes.reserve(static_cast<std::size_t>(text.size()));
    for (qsizetype i = 0; i < text.size(); ++i) {
        const QChar unit = text[i];
        if (unit.isHighSurrogate() && i + 1 < text.size() && text[i + 1].isLowSurrogate()) {
            ++i; // one character outside the 16-bit plane: never in 1252
            bytes.push_back('?');
            continue;
        }
        if (unit.isSurrogate()) {
            bytes.push_back('?');
            continue;
        }
        bytes.push_back(encodeCodePoint(unit.unicode()));
    }
    return bytes;
}

} // namespace purrlodge
