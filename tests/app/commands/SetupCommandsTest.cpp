#include <filesystem>
#include <gtest/gtest.h>

#include "accounts/CatteryFiles.h"
#include "app/Session.h"
#include "app/commands/CatterySetup.h"
#include "app/commands/ChangeDataSet.h"
#include "app/commands/ShellToggles.h"
#include "support/FakePorts.h"
#include "support/FakeQuestions.h"
#include "support/TempFolder.h"

namespace purrlodge {
namespace {

// The Setup menu's commands, on a session over a fresh data folder with
// their dialogs answered from scripts.
class SetupCommandsTest : public ::testing::Test {
protected:
    testing::TempFolder temp;
    testing::FakePorts fakes;
    Session session{fakes.ports(), temp.path()};
    testing::ScriptedSetupQuestions setup;
};

// Establishment Details filled in enough to be saved.
EstablishmentForm lodge(std::string typeSize)
{
    EstablishmentForm form;
    form.name = "Whiskers Lodge";
    form.vaccinationYears = "1";
    form.typeSize = std::move(typeSize);
    return form;
}

// Entry Void ending the program is driven through start-up's Establishment
// Details in StartupSequenceTest.
TEST_F(SetupCommandsTest, SetRatesReadsTheRatesAfreshAndCatteryDetailsTakeTheTypeSizeOnceSaved)
{
    RatesRecord onDisc{};
    onDisc.presentRate[0].set(9.5f);
    ASSERT_TRUE(saveRates(session.folder, onDisc));
    session.rates.presentRate[0].set(1.0f);
    setRates(session, setup);
    EXPECT_EQ(setup.rates.shown.at(0).presentRate[0], "9.50");

    EXPECT_EQ(editCatteryDetails(session, setup), std::nullopt) << "cancelled";
    EXPECT_EQ(setup.establishmentFolders.at(0), temp.path());
    // A failed save leaves the type size in force. The rules' failed saves are
    // pinned in CatterySetupTest; the other Setup commands only hand them on.
    std::filesystem::create_directory(temp.root() / establishmentFile);
    setup.establishment.entries = {lodge("3")};
    EXPECT_EQ(editCatteryDetails(session, setup), std::nullopt);
    EXPECT_EQ(setup.establishment.verdicts, std::vector<FormVerdict>{FormVerdict::StayOpen});
    EXPECT_EQ(session.shell.managerTypeSize, 2);
    std::filesystem::remove(temp.root() / establishmentFile);
    setup.establishment.entries = {lodge("4")};
    EXPECT_EQ(editCatteryDetails(session, setup), std::nullopt);
    EXPECT_EQ(session.shell.managerTypeSize, 4);
}

TEST_F(SetupCommandsTest, ChangeDataSetQuitsOnlyOnceCurrentDirWasWritten)
{
    EXPECT_EQ(changeDataSet(session, setup), std::nullopt) << "cancelled";
    EXPECT_EQ(setup.changeDataSource.shown, std::vector<std::string>{temp.path()});

    // A settings file that cannot be written keeps the dialog open; the next
    // OK, once it can, registers the folder.
    const std::string folder = temp.path() + "other/";
    setup.changeDataSource.steps = {[&](std::string& typed) {
                                        typed = folder;
                                        fakes.profile.failWrites = true;
                                    },
                                    [&](std::string&) { fakes.profile.failWrites = false; }};
    EXPECT_EQ(changeDataSet(session, setup), 1);
    EXPECT_EQ(setup.changeDataSource.verdicts,
              (std::vector<FormVerdict>{FormVerdict::StayOpen, FormVerdict::Accept}));
    EXPECT_EQ(fakes.profile.read("CurrentDir"), folder);
    EXPECT_EQ(fakes.ui.titles(), std::vector<std::string>{"Set Default Directory"});
}

TEST_F(SetupCommandsTest, EachToggleFlipsItsSettingOnlyWhenItsKeyWasWritten)
{
    struct Toggle {
        void (*command)(Session&);
        bool ShellState::*setting;
        std::string key, on, off;
    };
    for (const Toggle& toggle :
         {Toggle{toggleDigitalClock, &ShellState::digitalClock, "ClkTyp", "D", "C"},
          Toggle{togglePictureNoteIndicator, &ShellState::pictureNoteIndicator, "musnotes", "Y",
                 "N"},
          Toggle{toggleBackupReminder, &ShellState::backupReminder, "RemStatus", "1", "0"}}) {
        bool& setting = session.shell.*toggle.setting;
        const bool before = setting;
        fakes.profile.failWrites = true;
        toggle.command(session);
        EXPECT_EQ(setting, before) << toggle.key;
        fakes.profile.failWrites = false;
        toggle.command(session);
        EXPECT_EQ(setting, !before) << toggle.key;
        EXPECT_EQ(fakes.profile.read(toggle.key), before ? toggle.off : toggle.on);
        toggle.command(session);
        EXPECT_EQ(fakes.profile.read(toggle.key), before ? toggle.on : toggle.off);
    }
}

} // namespace
} // namespace purrlodge
