#include "gui/print/TBlindPrintout.h"

#include <QFontMetrics>
#include <QPaintDevice>

#include "gui/Text1252.h"

namespace purrlodge {

namespace {

// Fonts are measured at this pixel size and scaled, since a pixel size sets
// the em and not the cell.
constexpr int measuringPixelSize = 1000;

} // namespace

TBlindPrintout::TBlindPrintout(QPainter& painter) : painter_(painter)
{}

int TBlindPrintout::horizontalResolution() const
{
    return painter_.device()->logicalDpiX();
}

int TBlindPrintout::verticalResolution() const
{
    return painter_.device()->logicalDpiY();
}

QFont TBlindPrintout::fontForCell(const CanvasFont& font, QPaintDevice* device)
{
    QFont made(fromWindows1252(font.face));
    made.setStyleHint(QFont::Serif); // roman family where the face is missing
    made.setWeight(font.bold ? QFont::Bold : QFont::Normal);
    made.setUnderline(font.underline);
    made.setPixelSize(measuringPixelSize);
    const int measured = QFontMetrics(made, device).height();
    if (measured > 0 && font.cellHeight > 0)
        made.setPixelSize(std::max(1, static_cast<int>(static_cast<long long>(font.cellHeight) *
                                                       measuringPixelSize / measured)));
    return made;
}

void TBlindPrintout::selectFont(const CanvasFont& font)
{
    const QString key = fromWindows1252(font.face) + QLatin1Char('/') +
                        QString::number(font.cellHeight) + (font.bold ? u"b" : u"n") +
                        (font.underline ? u"u" : u"n");
    auto found = fonts_.find(key);
    if (found == fonts_.end())
        found = fonts_.insert(key, fontForCell(font, painter_.device()));
    painter_.setFont(*found);
}

int TBlindPrintout::cellHeight() const
{
    return painter_.fontMetrics().height();
}

int TBlindPrintout::textWidth(std::string_view text) const
{
    return painter_.fontMetrics().horizontalAdvance(fromWindows1252(text));
}

void TBlindPrintout::drawText(int x, int y, std::string_view text, Rgb colour)
{
    painter_.setPen(QColor(colour.red, colour.green, colour.blue));
    painter_.drawText(x, y + painter_.fontMetrics().ascent(), fromWindows1252(text));
}

} // namespace purrlodge
