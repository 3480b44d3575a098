#pragma once

#include <string>
#include <string_view>
#include <vector>

#include "ports/Canvas.h"

namespace purrlodge::testing {

// A page with fixed metrics that records every line drawn: the cell height is
// the height asked for plus `cellSlack` (a device rounds it), and text is
// `charWidth` pixels a character.
struct FakeCanvas : Canvas {
    struct Drawn {
        int x = 0;
        int y = 0;
        std::string text;
        Rgb colour;
        CanvasFont font;
    };

    [[nodiscard]] int horizontalResolution() const override { return horizontalDpi; }
    [[nodiscard]] int verticalResolution() const override { return verticalDpi; }
    void selectFont(const CanvasFont& font) override { selected = font; }
    [[nodiscard]] int cellHeight() const override { return selected.cellHeight + cellSlack; }
    [[nodiscard]] int textWidth(std::string_view text) const override
    {
        return charWidth * static_cast<int>(text.size());
    }
    void drawText(int x, int y, std::string_view text, Rgb colour) override
    {
        drawn.push_back({x, y, std::string(text), colour, selected});
    }

    int horizontalDpi = 600;
    int verticalDpi = 600;
    int cellSlack = 0;
    int charWidth = 10;
    CanvasFont selected;
    std::vector<Drawn> drawn;
};

} // namespace purrlodge::testing
