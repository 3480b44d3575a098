#pragma once

#include <functional>

#include <QPageLayout>
#include <QString>

#include "ports/Printer.h"

class QPagedPaintDevice;

namespace purrlodge {

class Canvas;

// What a PDF page shares with a printed one: A4 (Letter where the locale
// uses it), laid out for a printable area a quarter inch inside the paper,
// as most printers have.
[[nodiscard]] QPageLayout defaultPdfLayout();

// Draws the one page of a job on a printer or PDF writer: Printed when the
// device took it.
PrintOutcome drawOnePage(QPagedPaintDevice& device, const std::function<void(Canvas&)>& drawPage);

// Writes the one page as the PDF file `path` at 600 dots per inch, titled
// `title`: Printed when the file is written.
PrintOutcome writePdfPage(const QString& path, const QPageLayout& layout, const QString& title,
                          const std::function<void(Canvas&)>& drawPage);

} // namespace purrlodge
