#include "gui/Text1252.h"

#include <array>

#include "store/Windows1252.h"

namespace purrlodge {

namespace {

char16_t decodeByte(unsigned char byte)
{
    return static_cast<char16_t>(unicodeOfWindows1252(byte));
}

char encodeCodePoint(char32_t codePoint)
{
    return windows1252Of(codePoint);
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
