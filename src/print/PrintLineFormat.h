#pragma once

#include <string>
#include <string_view>

#include "ports/Canvas.h"

namespace purrlodge {

class RandomDraw;

// A format line is seven comma-separated fields: size and weight, column,
// vertical offset, face, underline, colour, alignment. For example
// "0b, 20, 150, 2, n, 000, C" or "2, 18, -180, 4, n, 010, A".

// One format line as the layout engine reads it.
struct ParsedPrintLine {
    int sizeIndex = 0; // 0 (largest) .. 5 (smallest); a number outside is clamped into them
    bool bold = false;
    int column = 0; // quarter inches from the left
    int offset = 0; // device units added to the running y; -1: the previous line's top
    std::string face;
    bool underline = false;
    Rgb colour;
    char alignment = '\0'; // 'A', 'C', 'L', 'R', 'X'; anything else draws as 'A'
};

// The format line without its last field (the alignment), as the engine
// stores it back over the slot: the text before the last comma, or empty when
// there is no comma.
[[nodiscard]] std::string withoutLastField(std::string_view format);

// Reads a format line step by step: the alignment is its last character, the
// rest comes from the line without its last field. Bold only when the second
// character is 'b' (so "12b" is not bold); numbers are read atoi-style.
[[nodiscard]] ParsedPrintLine parsePrintLine(std::string_view format);

// The face-table entry of an index; empty (the platform's default face) for
// 6..8 and for any index outside the table.
[[nodiscard]] std::string_view printFaceName(int faceIndex);

// The font's cell height for a size index (clamped to 0..5): trunc(vertical
// dpi / divisor).
[[nodiscard]] int printCellHeight(int verticalDpi, int sizeIndex);

// The colour schemes a name can be printed in are indexed 0..9; an index
// of 10 draws one of them at random.
inline constexpr int colourSchemeCount = 10;

// The colour field of a scheme index 0..9, "009" for 0 to "000" for 9;
// "000" for any other index.
[[nodiscard]] std::string_view schemeColourField(int colourIndex);

// The colour a scheme index 0..9 prints in; black for any other index.
[[nodiscard]] Rgb schemeColour(int colourIndex);

// The line with its colour field (the sixth) replaced by the colour scheme of
// the index 0..10, where 10 draws a random scheme 0..9. The fields are joined
// again with ", " and keep their own blanks, so "0b, 8, 50, 2, u, 000, C"
// with index 4 gives "0b,  8,  50,  2,  u, 900,  C".
[[nodiscard]] std::string recolourFormat(std::string_view format, int colourIndex,
                                         RandomDraw& draw);

} // namespace purrlodge
