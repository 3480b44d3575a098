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

} // namespace purrlodge
