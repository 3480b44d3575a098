#pragma once

#include <QFont>
#include <QHash>
#include <QPainter>

#include "ports/Canvas.h"

namespace purrlodge {

// One printed page: the Canvas the layout engine draws on, over a QPainter on
// a printer or a PDF file. Fonts are made to the cell height asked for (ascent
// plus descent in device pixels), whatever the face; text is drawn with the
// top of its cell at y.
class TBlindPrintout : public Canvas {
public:
    // The painter must be active on its device for as long as this lives.
    explicit TBlindPrintout(QPainter& painter);

    [[nodiscard]] int horizontalResolution() const override;
    [[nodiscard]] int verticalResolution() const override;
    void selectFont(const CanvasFont& font) override;
    [[nodiscard]] int cellHeight() const override;
    [[nodiscard]] int textWidth(std::string_view text) const override;
    void drawText(int x, int y, std::string_view text, Rgb colour) override;

    // The font whose cell is `cellHeight` device pixels high on `device`.
    [[nodiscard]] static QFont fontForCell(const CanvasFont& font, QPaintDevice* device);

private:
    QPainter& painter_;
    // Fonts made so far, by face, weight and height: a page asks for few.
    QHash<QString, QFont> fonts_;
};

} // namespace purrlodge
