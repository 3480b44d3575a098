#include "store/Windows1252.h"

#include <array>

namespace purrlodge {

namespace {

// The characters 1252 puts at 0x80..0x9F; 0 marks a byte it leaves undefined.
constexpr std::array<char16_t, 32> highControlRange = {
    0x20AC, 0,      0x201A, 0x0192, 0x201E, 0x2026, 0x2020, 0x2021, // 0x80
    0x02C6, 0x2030, 0x0160, 0x2039, 0x0152, 0,      0x017D, 0,      // 0x88
    0,      0x2018, 0x2019, 0x201C, 0x201D, 0x2022, 0x2013, 0x2014, // 0x90
    0x02DC, 0x2122, 0x0161, 0x203A, 0x0153, 0,      0x017E, 0x0178, // 0x98
};

void appendUtf8(std::string& out, char32_t c)
{
    if (c < 0x80) {
        out.push_back(static_cast<char>(c));
    } else if (c < 0x800) {
        out.push_back(static_cast<char>(0xC0 | (c >> 6)));
        out.push_back(static_cast<char>(0x80 | (c & 0x3F)));
    } else {
        out.push_back(static_cast<char>(0xE0 | (c >> 12)));
        out.push_back(static_cast<char>(0x80 | ((c >> 6) & 0x3F)));
        out.push_back(static_cast<char>(0x80 | (c & 0x3F)));
    }
}

} // namespace

char32_t unicodeOfWindows1252(unsigned char byte)
{
    if (byte >= 0x80 && byte <= 0x9F) {
        const char16_t mapped = highControlRange[byte - 0x80];
        return mapped != 0 ? mapped : char32_t(byte);
    }
    return byte; // the rest of 1252 is Latin-1
}

char windows1252Of(char32_t character)
{
    if (character < 0x80 || (character >= 0xA0 && character <= 0xFF))
        return static_cast<char>(character);
    for (std::size_t i = 0; i < highControlRange.size(); ++i) {
        const char32_t expected =
            highControlRange[i] != 0 ? highControlRange[i] : char32_t(0x80 + i);
        if (character == expected)
            return static_cast<char>(0x80 + i);
    }
    return '?';
}

std::string utf8FromWindows1252(std::string_view text)
{
    std::string out;
    out.reserve(text.size());
    for (const char byte : text)
        appendUtf8(out, unicodeOfWindows1252(static_cast<unsigned char>(byte)));
    return out;
}

std::string windows1252FromUtf8(std::string_view text)
{
    std::string out;
    out.reserve(text.size());
    for (std::size_t i = 0; i < text.size();) {
        const auto lead = static_cast<unsigned char>(text[i]);
        const int length = lead < 0x80           ? 1
                           : (lead >> 5) == 0x6  ? 2
                           : (lead >> 4) == 0xE  ? 3
                           : (lead >> 3) == 0x1E ? 4
                                                 : 0;
        bool valid = length > 0 && i + static_cast<std::size_t>(length) <= text.size();
        char32_t c = length == 1   ? lead
                     : length == 2 ? lead & 0x1F
                     : length == 3 ? lead & 0x0F
                                   : lead & 0x07;
        for (int k = 1; valid && k < length; ++k) {
            const auto next = static_cast<unsigned char>(text[i + static_cast<std::size_t>(k)]);
            valid = (next & 0xC0) == 0x80;
            c = (c << 6) | (next & 0x3F);
        }
        out.push_back(valid ? windows1252Of(c) : '?');
        i += valid ? static_cast<std::size_t>(length) : 1;
    }
    return out;
}

std::filesystem::path nativePath(std::string_view text)
{
#ifdef _WIN32
    std::u16string wide;
    for (const char byte : text)
        wide.push_back(
            static_cast<char16_t>(unicodeOfWindows1252(static_cast<unsigned char>(byte))));
    return std::filesystem::path(wide);
#else
    return std::filesystem::path(utf8FromWindows1252(text));
#endif
}

std::string windows1252Of(const std::filesystem::path& path)
{
#ifdef _WIN32
    std::string out;
    for (const char16_t unit : path.u16string())
        out.push_back(windows1252Of(unit));
    return out;
#else
    return windows1252FromUtf8(path.string());
#endif
}

} // namespace purrlodge
