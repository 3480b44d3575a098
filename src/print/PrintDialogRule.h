#pragma once

namespace purrlodge {

// Print-dialog modes as the settings store them.
inline constexpr int printDialogNever = 0;
inline constexpr int printDialogEveryTime = 1;
inline constexpr int printDialogFirstPrintOnly = 2;

// Whether print jobs show the print dialog, for the run. The mode in force
// starts as the stored setting; "1st Print Only" turns it to Never after the
// first job, for this run only.
struct PrintDialogState {
    int modeInForce = printDialogNever;
    // Set after any job run while the mode in force was Every Time or 1st
    // Print Only; never reset during a run.
    bool printedWithDialog = false;
};

// Whether the next job shows the print dialog: any mode but Never.
[[nodiscard]] bool promptFor(const PrintDialogState& state);

// What follows every job, printed or not: 1st Print Only becomes Never, and
// both dialog modes mark that a job ran with the dialog.
void afterPrint(PrintDialogState& state);

} // namespace purrlodge
