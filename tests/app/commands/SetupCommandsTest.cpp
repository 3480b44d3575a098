#include <gtest/gtest.h>

#include "accounts/CatteryFiles.h"
#include "app/Session.h"
#include "app/commands/CatterySetup.h"
#include "app/commands/ChangeDataSet.h"
#include "app/commands/ShellToggles.h"
#include "store/ClientFiles.h"
#include "support/Bytes.h"
#include "support/FakePorts.h"
#include "support/FakeQuestions.h"
#include "support/TempFolder.h"

namespace purrlodge {
namespace {

using testing::bytesOf;
using testing::fileBytes;

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

TEST_F(SetupCommandsTest, AFailedSaveKeepsEachDialogOpenAndTheSessionAsOnDisc)
{
    session.rates.presentRate[0].set(10.0f);
    session.exchangeRate.pencePerEuro.set(62.5f);
    session.index.lastAccountNumber.set(1041);
    ASSERT_TRUE(saveRates(session.folder, session.rates) &&
                saveExchangeRate(session.folder, session.exchangeRate) &&
                writeIndex(session.folder, session.index) &&
                saveEstablishment(session.folder, session.establishment));
    session.folder.setPath(temp.path() + "gone/");

    setup.rates.entries = {RatesForm{}};
    setup.exchangeRate.entries = {ExchangeRateForm{"70", true}};
    setup.standardExtra.entries = {StandardExtraForm{"Bath", "3"}};
    setup.receiptNumber.entries = {"2000"};
    setup.establishment.entries = {lodge("3")};
    setRates(session, setup);
    setEuroExchangeRate(session, setup);
    setStandardExtra(session, setup);
    setAccountNumber(session, setup);
    EXPECT_EQ(editCatteryDetails(session, setup), std::nullopt);

    EXPECT_EQ(fakes.ui.titles(), std::vector<std::string>(5, "File Error"));
    EXPECT_EQ(bytesOf(session.rates), fileBytes(temp.root() / "NRATES.RTS"));
    EXPECT_EQ(bytesOf(session.exchangeRate), fileBytes(temp.root() / "EURORATE.XCH"));
    EXPECT_EQ(bytesOf(session.index), fileBytes(temp.root() / "FIDEX.CTL"));
    EXPECT_EQ(bytesOf(session.establishment), fileBytes(temp.root() / "NESTAB.DAT"));
    EXPECT_EQ(session.shell.managerTypeSize, 2);
}

// Entry Void ending the program is driven through start-up's Establishment
// Details in StartupSequenceTest.
TEST_F(SetupCommandsTest, SetRatesReadsTheRatesAfreshAndCatteryDetailsTakeTheTypeSize)
{
    RatesRecord onDisc{};
    onDisc.presentRate[0].set(9.5f);
    ASSERT_TRUE(saveRates(session.folder, onDisc));
    session.rates.presentRate[0].set(1.0f);
    setRates(session, setup);
    EXPECT_EQ(setup.rates.shown.at(0).presentRate[0], "9.50");

    EXPECT_EQ(editCatteryDetails(session, setup), std::nullopt) << "cancelled";
    EXPECT_EQ(setup.establishmentFolders.at(0), temp.path());
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
    setup.changeDataSource.entries = {folder, folder};
    setup.changeDataSource.beforeOk = [this](std::size_t pressed) {
        fakes.profile.failWrites = pressed == 0;
    };
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
