#include "print/PageLayout.h"

#include <algorithm>
#include <cmath>
#include <cstdint>
#include <limits>

#include "ports/Canvas.h"
#include "print/PrintBuffer.h"
#include "print/PrintLineFormat.h"

namespace purrlodge {

namespace {

// Positions are worked out in 64 bits (offsets, columns and resolutions come
// from the buffer and the device) and handed on within the int range.
int toInt(std::int64_t value)
{
    return static_cast<int>(std::clamp<std::int64_t>(value, std::numeric_limits<int>::min(),
                                                     std::numeric_limits<int>::max()));
}

// Centred on the line 4 inches from the left; half the width truncates first.
// Both terms are far inside the 64-bit range, so the truncation is exact.
std::int64_t centredX(int horizontalDpi, int width)
{
    return static_cast<std::int64_t>(std::trunc(4.0 * horizontalDpi - width / 2));
}

// A page that only notes how low its lines reach. The cell heights are those
// the engine asks for; widths do not matter to the depth.
class DepthGauge : public Canvas {
public:
    static constexpr int dpi = 600;

    [[nodiscard]] int horizontalResolution() const override { return dpi; }
    [[nodiscard]] int verticalResolution() const override { return dpi; }
    void selectFont(const CanvasFont& font) override { cellHeight_ = font.cellHeight; }
    [[nodiscard]] int cellHeight() const override { return cellHeight_; }
    [[nodiscard]] int textWidth(std::string_view) const override { return 0; }
    void drawText(int, int y, std::string_view, Rgb) override
    {
        bottom_ = std::max<std::int64_t>(bottom_, std::int64_t{y} + cellHeight_);
    }

    [[nodiscard]] double bottomInInches() const { return static_cast<double>(bottom_) / dpi; }

private:
    int cellHeight_ = 0;
    std::int64_t bottom_ = 0;
};

} // namespace

double printedDepth(const PrintBuffer& buffer)
{
    PrintBuffer copy = buffer; // rendering shortens the format lines
    DepthGauge gauge;
    renderPage(copy, gauge);
    return gauge.bottomInInches();
}

void renderPage(PrintBuffer& buffer, Canvas& canvas)
{
    const int horizontalDpi = canvas.horizontalResolution();
    const int verticalDpi = canvas.verticalResolution();
    // "X" lines start no higher than 8.5 inches down.
    const std::int64_t footTop = static_cast<std::int64_t>(std::ceil(8.5 * verticalDpi));

    std::int64_t y = 0;
    bool alignRight = false; // each page starts left aligned
    const int count = std::min(buffer.count, printSlotCount);
    for (int slot = 0; slot < count; ++slot) {
        std::string& format = buffer.formats[static_cast<std::size_t>(slot)];
        const std::string& text = buffer.texts[static_cast<std::size_t>(slot)];
        const ParsedPrintLine line = parsePrintLine(format);
        format = withoutLastField(format);

        canvas.selectFont(CanvasFont{line.face, printCellHeight(verticalDpi, line.sizeIndex),
                                     line.bold, line.underline});
        const int width = canvas.textWidth(text);

        std::int64_t x = 0;
        switch (line.alignment) {
        case 'X':
            y = std::max(y, footTop);
            x = centredX(horizontalDpi, width);
            break;
        case 'C':
            x = centredX(horizontalDpi, width);
            break;
        default:
            if (line.alignment == 'L')
                alignRight = false;
            else if (line.alignment == 'R')
                alignRight = true;
            if (line.offset == -1)
                y = buffer.previousLineTop;
            else
                y += line.offset;
            x = std::int64_t{horizontalDpi} * line.column / 4;
            if (alignRight) // the column is the right end of the text
                x -= width;
            break;
        }
        canvas.drawText(toInt(x), toInt(y), text, line.colour);

        // A line that shares the previous line's top still moves the page on
        // by its own height.
        buffer.previousLineTop = toInt(y);
        y += canvas.cellHeight();
    }
}

} // namespace purrlodge
