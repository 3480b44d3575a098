#pragma once

namespace purrlodge {

class Canvas;
struct PrintBuffer;

// Draws the buffer's slots 0 .. count - 1 as one page, each text in the font,
// colour, position and alignment its format line names. Each format line is
// shortened in place by its last field as it is read, so a buffer is rendered
// once per fill. A count of 0 or -1 leaves the page blank. Sets the buffer's
// previous line top to the top of the last line drawn.
void renderPage(PrintBuffer& buffer, Canvas& canvas);

// How far down the page the buffer's lines reach, in inches: the bottom of the
// lowest line as renderPage draws it. Lets a page routine check that what it
// filled fits the paper; the buffer is left as it is.
[[nodiscard]] double printedDepth(const PrintBuffer& buffer);

} // namespace purrlodge
