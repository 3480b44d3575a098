#include "print/PrintDialogRule.h"

namespace purrlodge {

bool promptFor(const PrintDialogState& state)
{
    return state.modeInForce != printDialogNever;
}

void afterPrint(PrintDialogState& state)
{
    if (state.modeInForce == printDialogFirstPrintOnly) {
        state.printedWithDialog = true;
        state.modeInForce = printDialogNever;
    } else if (state.modeInForce == printDialogEveryTime) {
        state.printedWithDialog = true;
    }
}

} // namespace purrlodge
