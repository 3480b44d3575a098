#include "print/PrintJobRunner.h"

#include "print/PrintDialogRule.h"

namespace purrlodge {

bool runPrintJob(PrintJobRunner& runner, const std::string& title, PrintBuffer& buffer,
                 PrintDialogState& dialog)
{
    const bool printed = runner.run(title, promptFor(dialog), buffer);
    afterPrint(dialog);
    return printed;
}

bool CommandJobs::run(const std::string& title, PrintBuffer& buffer)
{
    const bool prompt = first_ && promptFor(dialog_);
    first_ = false;
    const bool printed = runner_.run(title, prompt, buffer);
    afterPrint(dialog_);
    return printed;
}

} // namespace purrlodge
