#pragma once

#include <string>

namespace purrlodge {

struct PrintBuffer;
struct PrintDialogState;

// Runs one one-page print job of the buffer under a title (the spooler's
// document name, never drawn), showing the print dialog first when asked.
// The gui implements it over the printer and renderPage.
class PrintJobRunner {
public:
    virtual ~PrintJobRunner() = default;

    // Whether the page printed: false when the dialog was cancelled or the
    // job failed.
    virtual bool run(const std::string& title, bool prompt, PrintBuffer& buffer) = 0;
};

// A page routine's one job: prompts by the mode in force, then applies the
// after-print rule whatever came of the job. Whether it printed.
bool runPrintJob(PrintJobRunner& runner, const std::string& title, PrintBuffer& buffer,
                 PrintDialogState& dialog);

} // namespace purrlodge
