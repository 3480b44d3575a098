#pragma once

#include <cstddef>
#include <string>
#include <string_view>
#include <vector>

namespace purrlodge {

// The face and size a line prints in, by their indexes in the format line.
struct PrintedFont {
    int faceIndex = 3;
    int sizeIndex = 5;
};

// How wide the text prints, in inches, estimated from the character widths of
// Arial Narrow for face 4 and of Arial for every other face (bold or not,
// whichever is wider; Times prints narrower still). Page routines fill the
// buffer before any device is chosen, so they wrap and cut by this.
[[nodiscard]] double printedWidth(std::string_view text, PrintedFont font);

// The longest start of the text that prints within `inches`, trailing blanks
// dropped.
[[nodiscard]] std::string cutToWidth(std::string_view text, PrintedFont font, double inches);

// The text in lines that each print within `inches`, broken at blanks (a word
// wider than a line is broken inside). At most `maxLines` lines: the last one
// is cut where the room ends. No lines for a text of blanks.
[[nodiscard]] std::vector<std::string> wrapToWidth(std::string_view text, PrintedFont font,
                                                   double inches, std::size_t maxLines);

} // namespace purrlodge
