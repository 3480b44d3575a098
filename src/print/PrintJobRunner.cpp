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

} // namespace purrlodge
