#include "app/StartupSequence.h"

#include <filesystem>
#include <gtest/gtest.h>

#include "accounts/CatteryFiles.h"
#include "app/Session.h"
#include "store/ClientFiles.h"
#include "store/IndexOperations.h"
#include "support/Bytes.h"
#include "support/FakePorts.h"
#include "support/FakeQuestions.h"
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
        index.backupReminderMode.set(7);
        appendEntry(index, "Smith", "SmithAnn");
        appendEntry(index, "Adams", "AdamsBob");
        ASSERT_TRUE(writeIndex(files, index));
        EstablishmentRecord establishment{};
        establishment.name.set("Whiskers Lodge");
        establishment.displayFlags.set("CA3");
        ASSERT_TRUE(saveEstablishment(files, establishment));
        ASSERT_TRUE(saveRates(files, RatesRecord{}));
    }

    Outcome run()
    {
        const StartupOutcome outcome = runStartupSequence(session, questions, "suggested/");
        return {outcome.carryOn, outcome.quitCode};
    }

    TempFolder data;
    FakePorts fake;
    DataFolder files{data.path(), fake.ui};
    Session session{fake.ports(), ""};
    testing::ScriptedSetupQuestions questions;
};

TEST_F(StartupSequenceTest, DirectorySetupIsAskedWithoutCurrentDirOrWhenForcedAndEndsTheRun)
{
    // Unreadable settings end the run before anything is asked or written.
    fake.profile.unreadableReason = "HEARTH.INI: Permission denied";
    EXPECT_EQ(run(), Outcome(false, 1));
    EXPECT_EQ(fake.ui.titles(), std::vector<std::string>{"Settings Error"});
    EXPECT_TRUE(questions.directorySetupSuggestions.empty() && fake.profile.writes.empty());

    fake.profile.unreadableReason.reset();
    EXPECT_EQ(run(), Outcome(false, 1)); // cancelled
    EXPECT_EQ(questions.directorySetupSuggestions, std::vector<std::string>{"suggested/"});
    EXPECT_EQ(fake.profile.read("ProgDir"), std::filesystem::current_path().string());
    EXPECT_EQ(session.currentYear, 2024);

    // A registered folder is used from the next start.
    setUpDataSet();
    session.shell.switches.forceDirectorySetup = true; // "-fdc" although CurrentDir is set
    questions.directorySetupAnswers.push_back(data.path() + "cats");
    EXPECT_EQ(run(), Outcome(false, 1));
    EXPECT_EQ(fake.profile.read("CurrentDir"), data.path() + "cats/");
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
    EXPECT_EQ(fake.ui.titles(), std::vector<std::string>{"Data Not Compatible"});
    readIndex(files, index);
    EXPECT_EQ(index.entries[1].key.str(), "Smith"); // neither sorted nor written
    EXPECT_TRUE(questions.establishment.shown.empty());
}

TEST_F(StartupSequenceTest, EstablishmentDetailsOpenWhenMissingOrForced)
{
    setUpDataSet();
    session.shell.switches.forceEstablishmentSetup = true;
    EXPECT_EQ(run(), Outcome(true, 0)); // the dialog cancelled
    ASSERT_EQ(questions.establishment.shown.size(), 1U);
    EXPECT_EQ(questions.establishment.shown[0].name, "Whiskers Lodge");

    session.shell.switches.forceEstablishmentSetup = false;
    files.remove(establishmentFile);
    questions.establishment.entries.push_back(EstablishmentForm{}); // no name: "Entry Void"
    EXPECT_EQ(run(), Outcome(false, 0));
    EXPECT_EQ(fake.ui.titles().back(), "Entry Void");
}

TEST_F(StartupSequenceTest, MissingRatesAndEuroRateAreWarnedAndTheRunGoesOn)
{
    setUpDataSet();
    files.remove(ratesFile);
    EXPECT_EQ(run(), Outcome(true, 0));
    EXPECT_EQ(fake.ui.titles(), std::vector<std::string>{"No Rates Set"});

    RatesRecord sterling{};
    sterling.currency.set(2);
    sterling.standardExtraName.set("Grooming");
    ASSERT_TRUE(saveRates(files, sterling));
    fake.ui.messages.clear();
    EXPECT_EQ(run(), Outcome(true, 0));
    EXPECT_EQ(fake.ui.titles(), std::vector<std::string>{"Euros not Set!"});
    EXPECT_TRUE(session.shell.ratesUsable);

    ASSERT_TRUE(saveExchangeRate(files, ExchangeRateRecord{}));
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
    EXPECT_EQ(fake.ui.messages.at(0).text, "You have never backedup your precious Purrlodge Data");
}

TEST_F(StartupSequenceTest, AFullStartLoadsTheDataSetSortsTheIndexAndReadsTheToggles)
{
    setUpDataSet();
    fake.profile.values["clktyp"] = "xDx";
    fake.profile.values["musnotes"] = "N";
    EXPECT_EQ(run(), Outcome(true, 0));
    EXPECT_TRUE(fake.ui.messages.empty()) << fake.ui.messages.front().title;
    ClientIndex onDisk{};
    readIndex(files, onDisk);
    EXPECT_EQ(onDisk.entries[1].key.str(), "Adams");
    EXPECT_EQ(session.shell.backupReminderMode, 7);
    EXPECT_EQ(session.shell.managerTypeSize, 3);
    EXPECT_FALSE(session.shell.ratesUsable);
    EXPECT_TRUE(session.shell.digitalClock && !session.shell.pictureNoteIndicator);
}

TEST_F(StartupSequenceTest, ADamagedIndexIsRepairedFromItsEntriesAfterACopyIsKept)
{
    setUpDataSet();
    // Stored by hand without the separator: the files must still go inside.
    fake.profile.values["currentdir"] = data.root().string();
    std::ofstream(data.root() / "SmithAnn.DAT.new~") << "half a record";
    ClientIndex damaged{};
    readIndex(files, damaged);
    damaged.count.set(-4);
    damaged.entries[3].key.set("Cole");
    damaged.entries[3].code.set("../esc");
    damaged.entries[5].key.set("Brown"); // a client past a blank entry is kept too
    damaged.entries[5].code.set("BrownCat");
    ASSERT_TRUE(writeIndex(files, damaged));

    EXPECT_EQ(run(), Outcome(true, 0));
    EXPECT_EQ(session.folder.path(), data.path());
    EXPECT_EQ(fake.ui.titles(), (std::vector<std::string>{"Client List Repaired", "Data Error"}));
    EXPECT_NE(fake.ui.messages[0].text.find("the number of clients was -4"), std::string::npos);
    EXPECT_NE(fake.ui.messages[0].text.find("kept as FIDEX.BAD"), std::string::npos);
    EXPECT_NE(fake.ui.messages[1].text.find("entry 3 (Cole): \"../esc\""), std::string::npos)
        << fake.ui.messages[1].text;
    EXPECT_EQ(testing::fileBytes(data.root() / "FIDEX.BAD"), testing::bytesOf(damaged));
    EXPECT_FALSE(std::filesystem::exists(data.root() / "SmithAnn.DAT.new~"));
    EXPECT_FALSE(std::filesystem::exists(data.root().string() + "FIDEX.CTL"));

    ClientIndex onDisk{};
    readIndex(files, onDisk);
    ASSERT_EQ(onDisk.count.get(), 4);
    std::vector<std::string> keys;
    for (int entry = 1; entry <= 4; ++entry)
        keys.push_back(onDisk.entries[entry].key.str());
    EXPECT_EQ(keys, (std::vector<std::string>{"Adams", "Brown", "Cole", "Smith"}));

    // Repaired, the index needs nothing more at the next start.
    fake.ui.messages.clear();
    run();
    EXPECT_EQ(fake.ui.titles(), std::vector<std::string>{"Data Error"});
}

TEST_F(StartupSequenceTest, AnIndexCutShortOrCountingTooManyKeepsEveryClient)
{
    setUpDataSet();
    ClientIndex index{};
    readIndex(files, index);
    for (const std::int32_t count : {5, 70000}) {
        SCOPED_TRACE(count);
        index.count.set(count);
        const std::string bytes = testing::bytesOf(index);
        // Cut after the second entry: the rest reads as blank entries.
        std::ofstream(data.root() / "FIDEX.CTL", std::ios::binary | std::ios::trunc)
            << bytes.substr(0, 16 + 3 * 34);
        fake.ui.messages.clear();
        EXPECT_EQ(run(), Outcome(true, 0));
        ASSERT_EQ(fake.ui.titles(), std::vector<std::string>{"Client List Repaired"});
        EXPECT_EQ(session.index.count.get(), 2);
        EXPECT_EQ(session.index.entries[1].key.str(), "Adams");
        EXPECT_EQ(std::filesystem::file_size(data.root() / "FIDEX.CTL"), sizeof(ClientIndex));
    }
    EXPECT_TRUE(std::filesystem::exists(data.root() / "FIDEX1.BAD")) << "the first copy stays";
}

} // namespace
} // namespace purrlodge
