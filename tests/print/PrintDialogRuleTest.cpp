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

// Three jobs in one run, for each mode.
TEST(PrintDialogRule, EachModeAcrossARun)
{
    struct Case {
        int mode;
        std::vector<bool> prompts;
        bool printedWithDialog;
        int modeAfter;
    };
    const Case cases[] = {
        {printDialogNever, {false, false, false}, false, printDialogNever},
        {printDialogEveryTime, {true, true, true}, true, printDialogEveryTime},
        {printDialogFirstPrintOnly, {true, false, false}, true, printDialogNever},
    };
    for (const Case& expected : cases) {
        PrintDialogState state{expected.mode, false};
        PromptRecorder runner;
        PrintBuffer buffer;
        for (int job = 0; job < 3; ++job)
            EXPECT_TRUE(runPrintJob(runner, "Rates", buffer, state));
        EXPECT_EQ(runner.prompts, expected.prompts) << expected.mode;
        EXPECT_EQ(state.printedWithDialog, expected.printedWithDialog) << expected.mode;
        EXPECT_EQ(state.modeInForce, expected.modeAfter) << expected.mode;
    }
}

TEST(PrintDialogRule, ACancelledFirstJobStillUsesUpTheFirstPrint)
{
    PrintDialogState state{printDialogFirstPrintOnly, false};
    PromptRecorder runner;
    runner.printed = false;
    PrintBuffer buffer;
    EXPECT_FALSE(runPrintJob(runner, "Rates", buffer, state));
    EXPECT_FALSE(promptFor(state));
    EXPECT_TRUE(state.printedWithDialog);
}

} // namespace
} // namespace purrlodge
