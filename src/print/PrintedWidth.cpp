#include "print/PrintedWidth.h"

#include <algorithm>
#include <array>

#include "print/PrintLineFormat.h"
#include "store/TextHelpers.h"

namespace purrlodge {

namespace {

constexpr int narrowFace = 4;

// Advance widths in thousandths of an em of the printable ASCII characters,
// space to tilde: the wider of Arial and Arial Bold.
constexpr std::array<short, 95> asciiWidths = {
    278,  333, 475, 557, 557, 890, 723, 238, 333, 333, 390, 584, 278, 333, 278, 278, // space to /
    557,  557, 557, 557, 557, 557, 557, 557, 557, 557, 333, 333, 584, 584, 584, 611, // 0 to ?
    1016, 723, 723, 723, 723, 667, 611, 778, 723, 278, 557, 723, 611, 833, 723, 778, // @ to O
    667,  778, 723, 667, 611, 723, 667, 944, 667, 667, 611, 333, 278, 333, 584, 557, // P to _
    333,  557, 611, 557, 611, 557, 333, 611, 611, 278, 278, 557, 278, 890, 611, 611, // ` to o
    611,  611, 390, 557, 333, 611, 557, 778, 557, 557, 500, 390, 280, 390, 584};     // p to ~
// Accented letters, signs and anything else: as wide as a wide capital, so a
// line of them is never measured short.
constexpr int otherWidth = 833;

// The em as a share of the cell height the engine asks for (ascent plus
// descent), and how much narrower Arial Narrow sets the same letters.
constexpr double arialEmPerCell = 1000.0 / 1117.0;
constexpr double narrowEmPerCell = 1000.0 / 1132.0;
constexpr double narrowScale = 0.82;

// The cell heights of the size table, read at a resolution fine enough that
// their truncation does not matter.
constexpr int fineDpi = 60000;

double inchesPerThousandth(PrintedFont font)
{
    const double cellInches =
        static_cast<double>(printCellHeight(fineDpi, font.sizeIndex)) / fineDpi;
    const double em = font.faceIndex == narrowFace ? cellInches * narrowEmPerCell * narrowScale
                                                   : cellInches * arialEmPerCell;
    return em / 1000.0;
}

int thousandths(char c)
{
    const auto code = static_cast<unsigned char>(c);
    if (code < 32 || code > 126)
        return otherWidth;
    return asciiWidths[code - 32];
}

// How many characters from the start print within `inches`.
std::size_t fittingLength(std::string_view text, double perThousandth, double inches)
{
    double width = 0.0;
    for (std::size_t length = 0; length < text.size(); ++length) {
        width += thousandths(text[length]) * perThousandth;
        if (width > inches)
            return length;
    }
    return text.size();
}

} // namespace

double printedWidth(std::string_view text, PrintedFont font)
{
    int total = 0;
    for (const char c : text)
        total += thousandths(c);
    return total * inchesPerThousandth(font);
}

std::string cutToWidth(std::string_view text, PrintedFont font, double inches)
{
    return trimRight(text.substr(0, fittingLength(text, inchesPerThousandth(font), inches)));
}

std::vector<std::string> wrapToWidth(std::string_view text, PrintedFont font, double inches,
                                     std::size_t maxLines)
{
    const double perThousandth = inchesPerThousandth(font);
    std::vector<std::string> lines;
    std::string rest = trim(text);
    while (!rest.empty() && lines.size() < maxLines) {
        const std::size_t fitting = fittingLength(rest, perThousandth, inches);
        if (fitting == rest.size() || lines.size() + 1 == maxLines) {
            lines.push_back(trimRight(rest.substr(0, fitting)));
            break;
        }
        // Break at the last blank that the room reaches; a single word wider
        // than the line is broken where the room ends, after one character
        // at least.
        const std::size_t blank = rest.rfind(' ', fitting);
        const std::size_t end =
            blank != std::string::npos && blank > 0 ? blank : std::max<std::size_t>(fitting, 1);
        lines.push_back(trimRight(rest.substr(0, end)));
        rest = trimLeft(rest.substr(end));
    }
    return lines;
}

} // namespace purrlodge
