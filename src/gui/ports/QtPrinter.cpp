#include "gui/ports/QtPrinter.h"

#include <QPrinterInfo>

namespace purrlodge {

bool QtPrinter::hasPrinter() const
{
    return !QPrinterInfo::availablePrinters().isEmpty();
}

} // namespace purrlodge
