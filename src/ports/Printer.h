#pragma once

#include <functional>
#include <string>
#include <vector>

namespace purrlodge {

class Canvas;

// How a print job ended.
enum class PrintOutcome {
    Printed,   // the page went to the printer, or to a PDF file
    Cancelled, // the person cancelled the print dialog: nothing printed
    Failed,    // the printer could not be used: nothing printed
};

// The printer: runs one-page jobs and says whether they printed.
class Printer {
public:
    virtual ~Printer() = default;

    // Whether a real printer is installed (otherwise jobs go to PDF files).
    [[nodiscard]] virtual bool hasPrinter() const = 0;

    // Runs one job of one page named `title` (the document's name, never
    // drawn): the print dialog first when `prompt`, then `drawPage` on the
    // job's canvas. Without a printer the page is saved as a PDF file
    // instead, with no dialog.
    virtual PrintOutcome printPage(const std::string& title, bool prompt,
                                   const std::function<void(Canvas&)>& drawPage) = 0;

    // The PDF files saved since the last call, which forgets them.
    [[nodiscard]] virtual std::vector<std::string> takeSavedFiles() = 0;

    // The system's printer and page set-up, for the jobs that follow.
    virtual void setUp() = 0;
};

} // namespace purrlodge
