#include "gui/cli/PdfFilePrinter.h"

#include <QFile>

#include "gui/Text1252.h"
#include "gui/print/PdfPage.h"

namespace purrlodge {

PrintOutcome PdfFilePrinter::printPage(const std::string& title, bool,
                                       const std::function<void(Canvas&)>& drawPage)
{
    const QString partial = path_ + QStringLiteral(".part");
    const PrintOutcome outcome =
        writePdfPage(partial, defaultPdfLayout(), fromWindows1252(title), drawPage);
    if (outcome != PrintOutcome::Printed) {
        QFile::remove(partial);
        return outcome;
    }
    QFile::remove(path_);
    if (!QFile::rename(partial, path_)) {
        QFile::remove(partial);
        return PrintOutcome::Failed;
    }
    return PrintOutcome::Printed;
}

} // namespace purrlodge
