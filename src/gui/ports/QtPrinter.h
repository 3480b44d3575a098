#pragma once

#include "ports/Printer.h"

namespace purrlodge {

// The printers of this machine, as CUPS reports them.
class QtPrinter : public Printer {
public:
    [[nodiscard]] bool hasPrinter() const override;
};

} // namespace purrlodge
