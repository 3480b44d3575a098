#include "gui/print/PdfPage.h"

#include <QLocale>
#include <QPainter>
#include <QPdfWriter>

#include "gui/print/TBlindPrintout.h"

namespace purrlodge {

namespace {

constexpr double pdfMarginMillimetres = 6.35;
constexpr int pdfResolution = 600;

} // namespace

QPageLayout defaultPdfLayout()
{
    const QLocale::Country country = QLocale().territory();
    const bool letter = country == QLocale::UnitedStates || country == QLocale::Canada ||
                        country == QLocale::Mexico;
    return QPageLayout(QPageSize(letter ? QPageSize::Letter : QPageSize::A4), QPageLayout::Portrait,
                       QMarginsF(pdfMarginMillimetres, pdfMarginMillimetres, pdfMarginMillimetres,
                                 pdfMarginMillimetres),
                       QPageLayout::Millimeter);
}

PrintOutcome drawOnePage(QPagedPaintDevice& device, const std::function<void(Canvas&)>& drawPage)
{
    QPainter painter;
    if (!painter.begin(&device))
        return PrintOutcome::Failed;
    TBlindPrintout page(painter);
    drawPage(page);
    return painter.end() ? PrintOutcome::Printed : PrintOutcome::Failed;
}

PrintOutcome writePdfPage(const QString& path, const QPageLayout& layout, const QString& title,
                          const std::function<void(Canvas&)>& drawPage)
{
    QPdfWriter writer(path);
    writer.setResolution(pdfResolution);
    writer.setPageLayout(layout);
    writer.setTitle(title);
    writer.setCreator(QStringLiteral("Purrlodge"));
    return drawOnePage(writer, drawPage);
}

} // namespace purrlodge
