#include <filesystem>
#include <gtest/gtest.h>

#include "accounts/CatteryFiles.h"
#include "app/Session.h"
#include "app/commands/Printing.h"
#include "print/PrinterJobs.h"
#include "support/FakePorts.h"
#include "support/FakeQuestions.h"
#include "support/TempFolder.h"

namespace purrlodge {
namespace {

using Jobs = std::vector<testing::FakePrinter::Job>;

struct ScriptedPrintingQuestions : PrintingQuestions {
    std::optional<FormVerdict> fillPrintDialogOption(int mode, const OkRule<int>& onOk) override
    {
        return dialogMode.run(mode, onOk);
    }
    std::optional<FormVerdict>
    fillColourPrintingOptions(const ColourPrintingForm& initial,
                              const OkRule<ColourPrintingForm>& onOk) override
    {
        return colours.run(initial, onOk);
    }

    testing::ScriptedForm<int> dialogMode;
    testing::ScriptedForm<ColourPrintingForm> colours;
};

class PrintingCommandsTest : public ::testing::Test {
protected:
    testing::TempFolder temp;
    testing::FakePorts fakes;
    Session session{fakes.ports(), temp.path()};
    ScriptedPrintingQuestions questions;
};

TEST_F(PrintingCommandsTest, ThePairIsToldInOneMessageAndACancelledAccountInNone)
{
    // Which pages print, and with which prompt, is pinned in AccountPagesTest.
    fakes.printer.savedFiles = {"/docs/Client's Account.pdf", "/docs/Account Copy.pdf"};
    EXPECT_TRUE(printAccountAndCopy(session, {}));
    ASSERT_EQ(fakes.ui.titles(), std::vector<std::string>{"Printout Saved"});
    EXPECT_NE(fakes.ui.messages[0].text.find("/docs/Account Copy.pdf"), std::string::npos);

    fakes.ui.messages.clear();
    fakes.printer.outcomes = {PrintOutcome::Cancelled};
    EXPECT_FALSE(printAccountAndCopy(session, {}));
    EXPECT_TRUE(fakes.ui.messages.empty()) << "nothing was saved";
}

TEST_F(PrintingCommandsTest, AFilePerPageOfALongPrintoutIsToldByItsFirstAndLast)
{
    const std::vector<std::string> files{"/docs/p.pdf", "/docs/p (2).pdf", "/docs/p (3).pdf",
                                         "/docs/p (4).pdf", "/docs/p (5).pdf"};
    fakes.printer.savedFiles.assign(files.begin(), files.begin() + 4);
    tellWherePrintoutsWent(fakes.printer, fakes.ui);
    EXPECT_NE(fakes.ui.messages.back().text.find("/docs/p (3).pdf\n"), std::string::npos);
    fakes.printer.savedFiles = files;
    tellWherePrintoutsWent(fakes.printer, fakes.ui);
    const std::string& told = fakes.ui.messages.back().text;
    EXPECT_EQ(told.find("(3)"), std::string::npos);
    EXPECT_NE(told.find("/docs/p.pdf\n...\n/docs/p (5).pdf\n(5 files, one for each page)"),
              std::string::npos);
}

TEST_F(PrintingCommandsTest, TheToolBarJobRunsWithTheDialogOnlyOnceAJobHasShownIt)
{
    session.printBuffer.add("left over", "3, 4, 0, 1, n, 000, A");
    runPendingPrintout(session);
    EXPECT_TRUE(fakes.printer.jobs.empty());
    EXPECT_EQ(session.printBuffer.count, -1);

    session.printDialog = {printDialogFirstPrintOnly, false};
    printClientDetails(session, ClientDetailsListing{"Client's Full Details", {"Mrs Ann Smith"}});
    EXPECT_EQ(session.printDialog.modeInForce, printDialogNever) << "the first print used it";
    runPendingPrintout(session);
    EXPECT_EQ(fakes.printer.jobs, (Jobs{{"Cat Details", true}, {"empty", true}}));
    EXPECT_EQ(session.printBuffer.count, 0) << "a blank page";
}

TEST_F(PrintingCommandsTest, TheOptionsChangeOnlyWhenTheirFilesAndSettingsTookThem)
{
    fakes.profile.failWrites = true;
    questions.dialogMode.entries = {printDialogNever};
    setPrintDialogOption(session, questions);
    EXPECT_EQ(questions.dialogMode.shown, std::vector<int>{printDialogEveryTime}) << "the default";
    EXPECT_EQ(questions.dialogMode.verdicts, std::vector<FormVerdict>{FormVerdict::StayOpen});
    EXPECT_EQ(session.printDialog.modeInForce, printDialogNever) << "as start-up left it";
    fakes.profile.failWrites = false;
    questions.dialogMode.entries = {printDialogFirstPrintOnly};
    setPrintDialogOption(session, questions);
    EXPECT_EQ(fakes.profile.read("PrtDialog"), "2");
    EXPECT_EQ(session.printDialog.modeInForce, printDialogFirstPrintOnly);

    ColourPrintingForm form;
    form.inColour[static_cast<std::size_t>(ColourItem::AccountCopy)] = true;
    form.nameColour = 7;
    // A folder where the cattery's details go: the first save fails, nothing changes.
    std::filesystem::create_directory(temp.root() / "NESTAB.DAT");
    questions.colours.entries = {form};
    setPrintingOptions(session, questions);
    EXPECT_TRUE(session.establishment.colourPrinting.str().empty());
    EXPECT_EQ(session.colourBlock.scheme.get(), 0U);
    std::filesystem::remove(temp.root() / "NESTAB.DAT");
    questions.colours.entries = {form};
    setPrintingOptions(session, questions);
    EXPECT_EQ(session.establishment.colourPrinting.str(), "5");
    EXPECT_TRUE(printsInColour(session.establishment, ColourItem::AccountCopy));
    EXPECT_FALSE(printsInColour(session.establishment, ColourItem::ClientsAccount));
    ColourBlock onDisc{};
    loadColourBlock(session.folder, onDisc);
    EXPECT_EQ(onDisc.scheme.get(), 7U);
    EXPECT_EQ(fakes.profile.read("AccNames"), "N");
}

} // namespace
} // namespace purrlodge
