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

// The jobs of one command that prints several pages (the account and its
// copy, the arrival sheets, the pages of a register): the print dialog shows,
// by the mode in force, on the first job only, and the after-print rule
// follows each job.
class CommandJobs {
public:
    CommandJobs(PrintJobRunner& runner, PrintDialogState& dialog) : runner_(runner), dialog_(dialog)
    {}

    // Whether the page printed.
    bool run(const std::string& title, PrintBuffer& buffer);

private:
    PrintJobRunner& runner_;
    PrintDialogState& dialog_;
    bool first_ = true;
};

} // namespace purrlodge
