#pragma once

#include <string>

namespace purrlodge {

// The printer: runs one-page jobs and says whether they printed.
class Printer {
public:
    virtual ~Printer() = default;

    // Whether a real printer is installed (otherwise jobs go to PDF files).
    [[nodiscard]] virtual bool hasPrinter() const = 0;
};

} // namespace purrlodge
