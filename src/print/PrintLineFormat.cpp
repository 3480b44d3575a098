#include "print/PrintLineFormat.h"

#include <algorithm>
#include <array>
#include <cmath>

#include "print/PrintBuffer.h"
#include "store/RandomDraw.h"
#include "store/TextHelpers.h"

namespace purrlodge {

namespace {

constexpr std::array<std::string_view, 9> faces = {"Digital SF",
                                                   "Times New Roman",
                                                   "CloisterBlack BT",
                                                   "Arial",
                                                   "Arial Narrow",
                                                   "Arial Black",
                                                   "",
                                                   "",
                                                   ""};

// The vertical resolution is divided by these to give the cell height.
constexpr std::array<double, 6> sizeDivisors = {2.0, 2.5, 3.5, 4.25, 4.75, 7.0};

// trunc(d * 28.3) for the digits 0..9: full intensity is 254, never 255.
constexpr std::array<std::uint8_t, 10> colourLevels = {0, 28, 56, 84, 113, 141, 169, 198, 226, 254};

constexpr std::array<std::string_view, 11> colourSchemes = {
    "009", "500", "090", "050", "900", "909", "055", "550", "990", "000", "000"};

constexpr int randomScheme = colourSchemeCount;
constexpr int fieldCount = 7;
constexpr int colourField = 5;

std::uint8_t colourLevel(char digit)
{
    if (digit < '0' || digit > '9')
        return 0;
    return colourLevels[static_cast<std::size_t>(digit - '0')];
}

// The last three characters are red, green and blue. A field shorter than
// three characters lacks its leading components, which read as 0 like any
// character that is not a digit.
Rgb colourFrom(std::string_view field)
{
    const auto fromEnd = [field](std::size_t back) {
        return field.size() >= back ? colourLevel(field[field.size() - back]) : std::uint8_t{0};
    };
    return Rgb{fromEnd(3), fromEnd(2), fromEnd(1)};
}

} // namespace

std::string_view schemeColourField(int colourIndex)
{
    return colourIndex >= 0 && colourIndex < colourSchemeCount
               ? colourSchemes[static_cast<std::size_t>(colourIndex)]
               : colourSchemes[randomScheme];
}

Rgb schemeColour(int colourIndex)
{
    return colourFrom(schemeColourField(colourIndex));
}

std::string withoutLastField(std::string_view format)
{
    const std::size_t lastComma = format.rfind(',');
    return lastComma == std::string_view::npos ? std::string()
                                               : std::string(format.substr(0, lastComma));
}

ParsedPrintLine parsePrintLine(std::string_view format)
{
    ParsedPrintLine parsed;
    parsed.alignment = format.empty() ? '\0' : format.back();

    const std::string line = withoutLastField(format);
    parsed.bold = line.size() >= 2 && line[1] == 'b';
    // Only 0..5 name a size; anything else gets the nearest one rather than
    // a divisor from outside the table.
    parsed.sizeIndex = std::clamp(leadingInt(line), 0, static_cast<int>(sizeDivisors.size()) - 1);

    const std::string afterFirst = textAfter(line, ",");
    const std::string afterSecond = textAfter(afterFirst, ",");
    const std::string afterThird = textAfter(afterSecond, ",");
    const std::string afterFifth = textAfter(textAfter(afterThird, ","), ",");
    parsed.column = leadingInt(afterFirst);
    parsed.offset = leadingInt(afterSecond);
    parsed.face = std::string(printFaceName(leadingInt(afterThird)));
    parsed.underline = afterSecond.find('u') != std::string::npos;
    parsed.colour = colourFrom(afterFifth);
    return parsed;
}

std::string_view printFaceName(int faceIndex)
{
    if (faceIndex < 0 || faceIndex >= static_cast<int>(faces.size()))
        return {};
    return faces[static_cast<std::size_t>(faceIndex)];
}

int printCellHeight(int verticalDpi, int sizeIndex)
{
    const int index = std::clamp(sizeIndex, 0, static_cast<int>(sizeDivisors.size()) - 1);
    return static_cast<int>(
        std::trunc(verticalDpi / sizeDivisors[static_cast<std::size_t>(index)]));
}

std::string recolourFormat(std::string_view format, int colourIndex, RandomDraw& draw)
{
    if (colourIndex == randomScheme)
        colourIndex = draw.upTo(9);
    // An index from outside the table (a damaged settings block) prints black.
    const std::string_view scheme = schemeColourField(colourIndex);

    // Seven fields; a short line has empty ones at its end and the seventh
    // keeps whatever follows the sixth comma.
    std::array<std::string_view, fieldCount> fields{};
    std::string_view rest = format;
    for (int field = 0; field < fieldCount - 1; ++field) {
        const std::size_t comma = rest.find(',');
        fields[static_cast<std::size_t>(field)] = rest.substr(0, comma);
        rest = comma == std::string_view::npos ? std::string_view() : rest.substr(comma + 1);
    }
    fields[fieldCount - 1] = rest;
    fields[colourField] = scheme;

    std::string joined(fields[0]);
    for (std::size_t field = 1; field < fields.size(); ++field) {
        joined += ", ";
        joined += fields[field];
    }
    return joined.substr(0, printFormatWidth);
}

} // namespace purrlodge
