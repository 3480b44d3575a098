#include <cstdlib>
#include <filesystem>
#include <fstream>
#include <gtest/gtest.h>
#include <sys/wait.h>

#include "accounts/CatteryFiles.h"
#include "app/jobs/JobOutcome.h"
#include "ports/Ui.h"
#include "store/DataFolder.h"
#include "support/Bytes.h"
#include "support/DataSetGenerator.h"
#include "support/TempFolder.h"

namespace purrlodge {
namespace {

namespace fs = std::filesystem;
using testing::fileBytes;

struct NoUi : Ui {
    void showMessage(const Message&) override {}
};

struct Finished {
    int exitCode = -1;
    std::string out;
    std::string err;
};

// purrlodge-cli as a timer starts it: no display, no Qt platform chosen, its
// own settings file pointing at a generated data set.
class CommandLineTest : public ::testing::Test {
protected:
    void SetUp() override
    {
        const DataFolder folder(data.path(), ui);
        static_cast<void>(testing::generateDataSet(folder, 5, 9));
        EstablishmentRecord cattery{};
        cattery.name.set("Whiskers Lodge");
        ASSERT_TRUE(saveEstablishment(folder, cattery) && saveRates(folder, RatesRecord{}));
        fs::create_directories(home.root() / "config");
        std::ofstream(home.root() / "config" / "HEARTH.INI")
            << "[Purrlodge]\nCurrentDir=" << data.path() << "\n";
    }

    Finished run(const std::string& arguments)
    {
        const fs::path out = home.root() / "out";
        const fs::path err = home.root() / "err";
        const std::string command = "env -u DISPLAY -u WAYLAND_DISPLAY -u QT_QPA_PLATFORM HOME='" +
                                    home.path() + "' XDG_CONFIG_HOME='" + home.path() +
                                    "config' '" PURRLODGE_CLI "' " + arguments + " >'" +
                                    out.string() + "' 2>'" + err.string() + "'";
        const int status = std::system(command.c_str());
        return {WIFEXITED(status) ? WEXITSTATUS(status) : -1, fileBytes(out), fileBytes(err)};
    }

    NoUi ui;
    testing::TempFolder data;
    testing::TempFolder home;
};

TEST_F(CommandLineTest, AJobRunsWithNoDisplayAndSaysWhatItDidOnStandardOutput)
{
    const std::string pdf = home.path() + "account 1002.pdf";
    const Finished account = run("account --number 1002 --pdf '" + pdf + "'");
    EXPECT_EQ(account.exitCode, jobExit::done) << account.err;
    EXPECT_EQ(account.err, "");
    EXPECT_NE(account.out.find("Account No. 1002 of "), std::string::npos) << account.out;
    const std::string written = fileBytes(pdf);
    EXPECT_TRUE(written.starts_with("%PDF-")) << written.substr(0, 20);
    EXPECT_NE(written.find("%%EOF", written.size() - 8), std::string::npos);
    EXPECT_FALSE(fs::exists(pdf + ".part"));

    const Finished help = run("--help");
    EXPECT_EQ(help.exitCode, jobExit::done);
    EXPECT_TRUE(help.out.starts_with("Usage: purrlodge-cli")) << help.out;
}

TEST_F(CommandLineTest, AFailureEndsWithOneLineAndItsExitCode)
{
    const struct {
        std::string arguments;
        int exitCode;
        std::string err;
    } cases[] = {
        {"--data /no/such/cattery export emails", jobExit::dataSetUnusable,
         "purrlodge-cli: the data folder /no/such/cattery/ does not exist\n"},
        {"export phones", jobExit::usage,
         "purrlodge-cli: export knows addresses and emails, not phones "
         "(purrlodge-cli --help for more)\n"},
        {"account --number 1002 --pdf /no/such/folder/a.pdf", jobExit::failed,
         "purrlodge-cli: the account could not be written to /no/such/folder/a.pdf\n"},
    };
    for (const auto& c : cases) {
        const Finished failed = run(c.arguments);
        EXPECT_EQ(failed.exitCode, c.exitCode) << c.arguments;
        EXPECT_EQ(failed.err, c.err);
        EXPECT_EQ(failed.out, "") << c.arguments;
    }
}

} // namespace
} // namespace purrlodge
