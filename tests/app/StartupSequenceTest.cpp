#include "app/StartupSequence.h"

#include <algorithm>
#include <filesystem>
#include <gtest/gtest.h>
#include <limits>

#include "accounts/CatteryFiles.h"
#include "app/BackupAlert.h"
#include "app/PictureRotation.h"
#include "app/Session.h"
#include "app/ShellToggles.h"
#include "store/ClientFiles.h"
#include "support/FakePorts.h"
#include "support/TempFolder.h"

namespace purrlodge {
namespace {

using testing::FakePorts;
using testing::TempFolder;
using Outcome = std::pair<bool, int>; // carry on, quit code

class StartupSequenceTest : public ::testing::Test {
protected:
    StartupSequenceTest() { fake.clock.setUtc(2024, 3, 5); }

    // A registered data set with an unsorted index, the cattery's details,
    // rates in Euros and a backup made yesterday.
    void setUpDataSet(std::int32_t stamp = currentFormatStamp)
    {
        fake.profile.values["currentdir"] = data.path();
        fake.profile.values["lastbkdate"] = std::to_string(fake.clock.nowSeconds - 86400);
        ClientIndex index{};
        index.formatStamp.set(stamp);
        index.count.set(2);
        index.backupReminderMode.set(7);
        index.entries[1].key.set("Smith");
        index.entries[2].key.set("Adams");
        writeIndex(files, index);
        EstablishmentRecord establishment{};
        establishment.name.set("Whiskers Lodge");
        establishment.displayFlags.set("CA3");
        saveEstablishment(files, establishment);
        saveRates(files, RatesRecord{});
    }

    Outcome run()
    {
        const StartupOutcome outcome = runStartupSequence(session, "suggested/");
        return {outcome.carryOn, outcome.quitCode};
    }

    TempFolder data;
    FakePorts fake;
    DataFolder files{data.path(), fake.ui};
    Session session{fake.ports(), ""};
};

TEST_F(StartupSequenceTest, WithoutSettingsDirectorySetupIsAsked)
{
    EXPECT_EQ(run(), Outcome(false, 1)); // cancelled
    EXPECT_EQ(fake.ui.directorySetupSuggestions, std::vector<std::string>{"suggested/"});
    EXPECT_EQ(fake.profile.read("ProgDir"), std::filesystem::current_path().string());
    EXPECT_EQ(session.currentYear, 2024);

    // A new folder is made and registered; it is used from the next start.
    fake.ui.directorySetupAnswers.push_back(data.path() + "cats/data");
    const std::string folder = data.path() + "cats/data/";
    EXPECT_EQ(run(), Outcome(false, 1));
    EXPECT_TRUE(std::filesystem::is_directory(folder));
    EXPECT_FALSE(std::filesystem::exists(folder + "FIDEX.CTL"));
    EXPECT_EQ(fake.profile.read("CurrentDir"), folder);
    EXPECT_EQ(fake.ui.messages,
              (std::vector<Message>{
                  {"OK, '" + folder + "' is now your active directory. Please restart the program",
                   "Set Default Directory"}}));
}

TEST_F(StartupSequenceTest, DirectorySetupOfAFolderWithDataConfirmsTwiceOrNotAtAll)
{
    setUpDataSet();
    session.shell.switches.forceDirectorySetup = true; // "-fdc" although CurrentDir is set
    fake.profile.writes.clear();
    const std::string typed = data.path().substr(0, data.path().size() - 1); // no separator

    fake.ui.directoryCheckAnswers = {true};
    fake.ui.directorySetupAnswers.push_back(typed);
    EXPECT_EQ(run(), Outcome(false, 1));
    EXPECT_EQ(fake.ui.titles(),
              (std::vector<std::string>{"Set Default Directory", "Set Default Directory"}));
    EXPECT_EQ(std::count(fake.profile.writes.begin(), fake.profile.writes.end(),
                         std::pair<std::string, std::string>{"CurrentDir", data.path()}),
              2);

    fake.ui.messages.clear();
    fake.profile.values.erase("currentdir");
    fake.ui.directorySetupAnswers.push_back(typed);
    EXPECT_EQ(run(), Outcome(false, 0)); // Directory Check answered No
    EXPECT_EQ(fake.ui.messages, (std::vector<Message>{{"The directory was not registered",
                                                       "Set Default Directory"}}));
    EXPECT_EQ(fake.profile.read("CurrentDir"), "");
}

TEST_F(StartupSequenceTest, AMissingIndexIsCreatedAndAForeignOneEndsTheRunUntouched)
{
    setUpDataSet();
    files.remove(currentIndexFile);
    EXPECT_EQ(run(), Outcome(true, 0));
    ClientIndex index{};
    ASSERT_TRUE(readIndex(files, index));
    EXPECT_EQ(index.formatStamp.get() + index.count.get(), 0);
    EXPECT_EQ(index.backupReminderMode.get(), 1);

    setUpDataSet(250101);
    files.remove(establishmentFile);
    EXPECT_EQ(run(), Outcome(false, 0));
    EXPECT_EQ(fake.ui.messages,
              (std::vector<Message>{
                  {"This new version of Purrlodge is incompatible with your old data set.\n\n"
                   "Please obtain the conversion program 'Update_Purrlodge' and run it on your "
                   "data first; then start Purrlodge again.",
                   "Data Not Compatible"}}));
    readIndex(files, index);
    EXPECT_EQ(index.entries[1].key.str(), "Smith"); // neither sorted nor written
    EXPECT_TRUE(fake.ui.establishmentDialogs.empty());
}

TEST_F(StartupSequenceTest, EstablishmentDetailsOpenWhenMissingOrForced)
{
    setUpDataSet();
    session.shell.switches.forceEstablishmentSetup = true;
    EXPECT_EQ(run(), Outcome(true, 0)); // the dialog cancelled
    ASSERT_EQ(fake.ui.establishmentDialogs.size(), 1U);
    EXPECT_EQ(fake.ui.establishmentDialogs[0].first.name, "Whiskers Lodge");

    session.shell.switches.forceEstablishmentSetup = false;
    files.remove(establishmentFile);
    fake.ui.establishmentEntries.push_back(EstablishmentForm{}); // no name: "Entry Void"
    EXPECT_EQ(run(), Outcome(false, 0));
    EXPECT_EQ(fake.ui.titles().back(), "Entry Void");
}

TEST_F(StartupSequenceTest, MissingRatesAndEuroRateAreWarnedAndTheRunGoesOn)
{
    setUpDataSet();
    files.remove(ratesFile);
    EXPECT_EQ(run(), Outcome(true, 0));
    EXPECT_EQ(
        fake.ui.messages,
        (std::vector<Message>{
            {"You do not have any Boarding Charges set for this Cattery!\n\nPlease go straight "
             "to Setup|Set Rates\nbefore proceeding to use this program or\nI shall not know "
             "how much to charge your boarders\nHowever, if you have already entered details "
             "and have been using Purrlodge\nthen it would seem that some information has "
             "been lost in your computer.\nIf this is the case, just press OK on this "
             "screen\nthen when the normal Purrlodge scree comes up,\ngo to 'Setup|Change "
             "data Set' and enter the addresss of your data folder!\nEverything will then be "
             "restored to normal!",
             "No Rates Set", MessageIcon::Exclamation}}));

    RatesRecord sterling{};
    sterling.currency.set(2);
    sterling.standardExtraName.set("Grooming");
    saveRates(files, sterling);
    fake.ui.messages.clear();
    EXPECT_EQ(run(), Outcome(true, 0));
    EXPECT_EQ(fake.ui.messages,
              (std::vector<Message>{{"Please Set the Euro-Exchange Rate", "Euros not Set!"}}));
    EXPECT_TRUE(session.shell.ratesUsable);

    saveExchangeRate(files, ExchangeRateRecord{});
    fake.ui.messages.clear();
    run();
    EXPECT_TRUE(fake.ui.messages.empty());
}

TEST_F(StartupSequenceTest, BackupAlertComesAfterThirtyDaysAndOneSecondWhenTheReminderIsOn)
{
    setUpDataSet();
    const std::int64_t now = fake.clock.nowSeconds;
    struct Case {
        std::int64_t lastBackup;
        std::string remStatus;
        bool alert;
    };
    for (const Case& c : {Case{now - 2592000, "", false}, Case{now - 2592001, "", true},
                          Case{now - 2592001, "1", true}, Case{now - 2592001, "0", false},
                          Case{now - 2592001, "yes", false}, Case{0, "", true}}) {
        fake.profile.values["lastbkdate"] = std::to_string(c.lastBackup);
        fake.profile.values["remstatus"] = c.remStatus;
        fake.profile.values.erase("lastwarn");
        fake.ui.messages.clear();
        run();
        EXPECT_EQ(fake.ui.messages.size(), c.alert ? 1U : 0U) << c.lastBackup << c.remStatus;
        EXPECT_EQ(fake.profile.read("LastWarn"), c.alert ? std::to_string(now) : "");
        EXPECT_EQ(session.shell.backupReminder, c.remStatus.empty() || c.remStatus == "1");
    }
    EXPECT_EQ(fake.ui.messages.at(0),
              (Message{"You have never backedup your precious Purrlodge Data", "Backup Alert",
                       MessageIcon::Exclamation}));

    testing::FakeClock clock;
    clock.setUtc(2009, 4, 23, 9, 5);
    EXPECT_EQ(backupAlertFor(clock.nowSeconds, true, clock.nowSeconds + 40 * 86400, clock)->text,
              "You have not backed up your Purrlodge Data since\n 09:05 on 23/04/09");
}

TEST(PictureRotationTest, ChangesOnEveryThirdDayOrAfterTwelveDaysAndWraps)
{
    EXPECT_EQ(advancedPictureIndex(4, 5, 9), 5); // 9 is divisible by 3
    EXPECT_EQ(advancedPictureIndex(4, 5, 10), std::nullopt);
    EXPECT_EQ(advancedPictureIndex(4, 5, 18), 5); // 18 > 5 + 12
    EXPECT_EQ(advancedPictureIndex(4, 9, 9), std::nullopt);
    EXPECT_EQ(advancedPictureIndex(20, 5, 9), 0);

    testing::FakeProfile profile;
    profile.values["picdets"] = "20 $ 5";
    EXPECT_EQ(rotatePicture(profile, 9), 0);
    EXPECT_EQ(profile.writes, (decltype(profile.writes){{"PicDets", "0 $ 9"}}));
    EXPECT_EQ(rotatePicture(profile, 9), 0);
    EXPECT_EQ(profile.writes.size(), 1U);
    profile.values["picdets"] = "57 $ 9"; // damaged
    EXPECT_EQ(rotatePicture(profile, 9), 0);
}

TEST_F(StartupSequenceTest, AFullStartLoadsTheDataSetSortsTheIndexAndReadsTheToggles)
{
    setUpDataSet();
    fake.profile.values["clktyp"] = "xDx";
    fake.profile.values["musnotes"] = "N";
    EXPECT_EQ(run(), Outcome(true, 0));
    EXPECT_TRUE(fake.ui.messages.empty()) << fake.ui.messages.front().title;
    EXPECT_EQ(session.folder.path(), data.path());
    ClientIndex onDisk{};
    readIndex(files, onDisk);
    EXPECT_EQ(onDisk.entries[1].key.str(), "Adams");
    EXPECT_EQ(session.shell.backupReminderMode, 7);
    EXPECT_EQ(session.establishment.name.str(), "Whiskers Lodge");
    EXPECT_EQ(session.shell.managerTypeSize, 3);
    EXPECT_EQ(session.shell.pictureTable[2], (std::pair{30, 65}));
    EXPECT_FALSE(session.shell.ratesUsable);
    EXPECT_TRUE(session.shell.digitalClock && !session.shell.pictureNoteIndicator);

    toggleDigitalClock(session);
    togglePictureNoteIndicator(session);
    toggleBackupReminder(session);
    const auto& writes = fake.profile.writes;
    EXPECT_EQ(
        std::vector(writes.end() - 3, writes.end()),
        (decltype(fake.profile.writes){{"ClkTyp", "C"}, {"musnotes", "Y"}, {"RemStatus", "0"}}));
    run();
    EXPECT_TRUE(!session.shell.digitalClock && session.shell.pictureNoteIndicator);
    EXPECT_FALSE(session.shell.backupReminder);
}

TEST(CatteryFilesTest, RatesAreUsableWithAStandardExtraNameOrAPositiveCharge)
{
    RatesRecord rates{};
    for (const float charge : {0.0f, -1.0f, std::numeric_limits<float>::quiet_NaN(), 0.5f}) {
        rates.standardExtraCharge.set(charge);
        EXPECT_EQ(ratesUsable(rates), charge > 0.0f) << charge;
    }
}

} // namespace
} // namespace purrlodge
