#pragma once

#include <cstdint>
#include <string>
#include <string_view>

namespace purrlodge {

// A colour as red, green and blue, 0..255 each.
struct Rgb {
    std::uint8_t red = 0;
    std::uint8_t green = 0;
    std::uint8_t blue = 0;

    friend bool operator==(const Rgb&, const Rgb&) = default;
};

// The font a line is drawn in: the face by its name, and the height of its
// character cell (ascent plus descent) in device pixels.
struct CanvasFont {
    std::string face;
    int cellHeight = 0;
    bool bold = false;
    bool underline = false;

    friend bool operator==(const CanvasFont&, const CanvasFont&) = default;
};

// One printed page as the layout engine sees it. Positions are device pixels
// from the page's top left corner; text is Windows-1252 bytes.
class Canvas {
public:
    virtual ~Canvas() = default;

    // Device pixels per inch, across and down.
    [[nodiscard]] virtual int horizontalResolution() const = 0;
    [[nodiscard]] virtual int verticalResolution() const = 0;

    // Selects the font the following measurements and drawing use.
    virtual void selectFont(const CanvasFont& font) = 0;
    // The selected font's cell height as the device made it (within a pixel of
    // the height asked for).
    [[nodiscard]] virtual int cellHeight() const = 0;
    // How wide the text is in the selected font.
    [[nodiscard]] virtual int textWidth(std::string_view text) const = 0;

    // Draws the text with the top of its cell at y.
    virtual void drawText(int x, int y, std::string_view text, Rgb colour) = 0;
};

} // namespace purrlodge
