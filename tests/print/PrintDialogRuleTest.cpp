#include "print/PrintDialogRule.h"

#include <gtest/gtest.h>
#include <vector>

#include "print/PrintBuffer.h"
#include "print/PrintJobRunner.h"

namespace purrlodge {
namespace {

struct PromptRecorder : PrintJobRunner {
    bool run(const std::string&, bool prompt, PrintBuffer&) override
    {
        prompts.push_back(prompt);
        return printed;
    }
    std::vector<bool> prompts;
    bool printed = true;
};

// Three jobs in one run, for each mode; a cancelled first job still uses up the first print.
TEST(PrintDialogRule, EachModeAcrossARun)
{
    struct Case {
        int mode;
        bool printed;
        std::vector<bool> prompts;
        bool printedWithDialog;
        int modeAfter;
    };
    const Case cases[] = {
        {printDialogNever, true, {false, false, false}, false, printDialogNever},
        {printDialogEveryTime, true, {true, true, true}, true, printDialogEveryTime},
        {printDialogFirstPrintOnly, true, {true, false, false}, true, printDialogNever},
        {printDialogFirstPrintOnly, false, {true, false, false}, true, printDialogNever},
    };
    for (const Case& expected : cases) {
        PrintDialogState state{expected.mode, false};
        PromptRecorder runner;
        runner.printed = expected.printed;
        PrintBuffer buffer;
        for (int job = 0; job < 3; ++job)
            EXPECT_EQ(runPrintJob(runner, "Rates", buffer, state), expected.printed);
        EXPECT_EQ(runner.prompts, expected.prompts) << expected.mode;
        EXPECT_EQ(state.printedWithDialog, expected.printedWithDialog) << expected.mode;
        EXPECT_EQ(state.modeInForce, expected.modeAfter) << expected.mode;
    }
}

} // namespace
} // namespace purrlodge
