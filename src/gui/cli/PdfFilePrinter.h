#pragma once

#include <QString>

#include "ports/Printer.h"

namespace purrlodge {

// The printer of an unattended job: every page goes to one PDF file, with
// no dialog ever. The file is written beside itself first and takes its
// name only when whole, so a failed job never leaves half a file.
class PdfFilePrinter : public Printer {
public:
    explicit PdfFilePrinter(QString path) : path_(std::move(path)) {}

    // The file is where the person asked for it: nothing to tell.
    [[nodiscard]] bool hasPrinter() const override { return true; }
    PrintOutcome printPage(const std::string& title, bool prompt,
                           const std::function<void(Canvas&)>& drawPage) override;
    [[nodiscard]] std::vector<std::string> takeSavedFiles() override { return {}; }
    void setUp() override {}

private:
    QString path_;
};

} // namespace purrlodge
