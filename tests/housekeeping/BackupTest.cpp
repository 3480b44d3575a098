#include <filesystem>
#include <fstream>
#include <gtest/gtest.h>

#include "housekeeping/BackupOptions.h"
#include "housekeeping/BackupRestore.h"
#include "housekeeping/BackupScan.h"
#include "housekeeping/BackupWhereabouts.h"
#include "housekeeping/FloppyBackup.h"
#include "housekeeping/FolderBackup.h"
#include "store/ClientFiles.h"
#include "store/DataFolder.h"
#include "store/IndexOperations.h"
#include "support/Bytes.h"
#include "support/FakeBackupQuestions.h"
#include "support/FakePorts.h"
#include "support/TempFolder.h"

namespace purrlodge {
namespace {

namespace fs = std::filesystem;
using Names = std::vector<std::string>;
using testing::fileBytes;

void put(const fs::path& file, const std::string& bytes)
{
    std::ofstream(file, std::ios::binary) << bytes;
}

Names namesIn(const fs::path& folder)
{
    Names names;
    for (const auto& entry : fs::directory_iterator(folder))
        names.push_back(entry.path().filename().string());
    std::sort(names.begin(), names.end());
    return names;
}

// A data folder with the cattery's files and two clients, Smith (all four
// files) and Jones (no note book), a sub-folder and a file of its own.
class BackupTest : public ::testing::Test {
protected:
    void SetUp() override
    {
        data = temp.root() / "Data";
        fs::create_directories(data / "pictures");
        for (const char* name :
             {"NESTAB.DAT", "FIDEX.CTL", "NRATES.RTS", "EURORATE.XCH", "SmithA.DAT", "SmithA.ACR",
              "SmithA.TXI", "SmithA.NTS", "JonesT.DAT", "JonesT.ACR", "JonesT.TXI", "NOTES.TXT"})
            put(data / name, std::string("bytes of ") + name);
        appendEntry(index, "Smith", "SmithA");
        appendEntry(index, "Jones", "JonesT");
        appendEntry(index, "Evil", "../x");
    }

    [[nodiscard]] std::string dataPath() const { return (data / "").string(); }

    testing::TempFolder temp;
    fs::path data;
    testing::FakePorts fakes;
    ClientIndex index{};
    testing::RecordingProgress progress;
};

TEST_F(BackupTest, ScanCountsEveryFileButListsOnlyTheCatteryAndClientFilesInIndexOrder)
{
    const DataFolder folder(dataPath(), fakes.ui);
    const BackupScan scan = scanForBackup(folder, index);
    EXPECT_EQ(scan.fileCount, 12);
    std::uint64_t bytes = 0;
    for (const auto& entry : fs::directory_iterator(data))
        bytes += entry.is_regular_file() ? entry.file_size() : 0;
    EXPECT_EQ(scan.totalBytes, bytes);
    EXPECT_EQ(scan.backupList, (Names{"NESTAB.DAT", "FIDEX.CTL", "NRATES.RTS", "EURORATE.XCH",
                                      "SmithA.DAT", "SmithA.ACR", "SmithA.TXI", "SmithA.NTS",
                                      "JonesT.DAT", "JonesT.ACR", "JonesT.TXI"}));
    EXPECT_EQ(dataFilesText(scan),
              "You have 12 Data Files totalling " + std::to_string(bytes) + " Bytes.");
}

TEST(BackupEstimate, DiscsAndMinutesTruncate)
{
    EXPECT_EQ(floppyDiscsNeeded(1299999), 1);
    EXPECT_EQ(floppyDiscsNeeded(1300000), 2);
    EXPECT_EQ(backupMinutes(26), 0);
    EXPECT_EQ(backupMinutes(27), 1);
    BackupScan scan;
    scan.totalBytes = 2600000;
    scan.backupList.resize(53);
    EXPECT_EQ(backupEstimateText(scan), "If you decide to backp to floppies you will need 3 discs. "
                                        " The estimated backup time is about 2 mins");
}

TEST_F(BackupTest, OkChecksComeInOrderAndTheFirstFailureIsTold)
{
    fakes.drives.roots['C'] = (temp.root() / "").string();
    struct Case {
        BackupOptions entries;
        std::string title;
    };
    const Case cases[] = {
        {{BackupMedium::None, "", ""}, "Buttone not clicked"},
        {{BackupMedium::OtherDrive, "", ""}, "Folder Error"},
        {{BackupMedium::OtherDrive, "MyCatData", ""}, "Data Omission"},
        {{BackupMedium::OtherDrive, "MyCatData", "cd"}, "Drive Error"},
        // The data folder itself, typed in another case.
        {{BackupMedium::OtherDrive, "DATA", "c"}, "Silly Error"},
        {{BackupMedium::OtherDrive, "Data", "b"}, "Wrong Button"},
        {{BackupMedium::OtherDrive, "..", "c"}, "Folder Error"},
        {{BackupMedium::OtherDrive, "My/Cat", "c"}, "Folder Error"},
        {{BackupMedium::OtherDrive, "MyCatData", "q"}, "Drive Not Set Up"},
        {{BackupMedium::Floppy, "", ""}, "Drive Not Set Up"},
    };
    for (const Case& c : cases) {
        BackupOptions entries = c.entries;
        const std::optional<Message> refusal =
            checkBackupOptions(entries, 100, dataPath(), fakes.drives);
        ASSERT_TRUE(refusal) << c.title;
        EXPECT_EQ(refusal->title, c.title) << entries.folder << " " << entries.drive;
    }
    BackupOptions fine{BackupMedium::OtherDrive, "MyCatData", "c"};
    EXPECT_FALSE(checkBackupOptions(fine, 100, dataPath(), fakes.drives));
    EXPECT_EQ(*backupFolderOf(fakes.drives, "c", "MyCatData"),
              (temp.root() / "MyCatData" / "").string());
}

TEST_F(BackupTest, AFloppyDriveTypedAsTheOtherDriveSwitchesToFloppiesOnlyWhileTheDataFits)
{
    BackupOptions small{BackupMedium::OtherDrive, "MyCatData", "a"};
    const std::optional<Message> refusal =
        checkBackupOptions(small, floppySizedData - 1, dataPath(), fakes.drives);
    EXPECT_EQ(refusal->text, "You seem to have provided the address of your Floppy Drive (drive "
                             "a)\nTo backup to floppy click the floppy option!");
    EXPECT_EQ(small, (BackupOptions{BackupMedium::Floppy, "MyCatData", "a"}));

    BackupOptions large{BackupMedium::OtherDrive, "MyCatData", "A"};
    ASSERT_TRUE(checkBackupOptions(large, floppySizedData, dataPath(), fakes.drives));
    EXPECT_EQ(large, (BackupOptions{BackupMedium::OtherDrive, "", "A"}));
}

TEST_F(BackupTest, FolderBackupReplacesTheOldBackupsFilesAndCopiesEveryDataFile)
{
    const fs::path backup = temp.root() / "Backup";
    fs::create_directories(backup / "keep");
    put(backup / "OLD.DAT", "old");
    put(backup / "SmithA.DAT", "stale");

    const CopyResult result =
        backupToFolder(dataPath(), (backup / "").string(), fakes.ui, progress);
    EXPECT_EQ(result.outcome, CopyOutcome::Done);
    EXPECT_EQ(result.filesCopied, 12);
    Names expected = namesIn(data);
    expected.erase(std::find(expected.begin(), expected.end(), "pictures"));
    expected.push_back("keep");
    std::sort(expected.begin(), expected.end());
    EXPECT_EQ(namesIn(backup), expected);
    EXPECT_EQ(fileBytes(backup / "SmithA.DAT"), "bytes of SmithA.DAT");
    EXPECT_EQ(progress.texts.front(), "Deleting old Backup data\n1 Old backup files deleted");
    EXPECT_EQ(progress.texts.back(), "Copying 12 Files");
    EXPECT_TRUE(fakes.ui.messages.empty());
}

// Drive A: stands for a folder; its free space is scripted.
class FloppyBackupTest : public BackupTest {
protected:
    void SetUp() override
    {
        BackupTest::SetUp();
        disc = temp.root() / "A";
        fs::create_directories(disc / "old");
        put(disc / "old" / "LETTER.DOC", "not ours");
        fakes.drives.roots['A'] = (disc / "").string();
    }

    CopyResult run(const Names& list)
    {
        const DataFolder folder(dataPath(), fakes.ui);
        return backupToFloppies(folder, list, fakes.drives, questions, progress, discNumber);
    }

    fs::path disc;
    testing::ScriptedBackupQuestions questions;
    int discNumber = 0;
};

TEST_F(FloppyBackupTest, AShortDiscIsRefusedUntilAGoodOneIsInThenClearedAndFilled)
{
    fakes.drives.freeReadings = {fullFloppyBytes - 1, fullFloppyBytes};
    questions.newFloppies = {true};
    const CopyResult result = run({"NESTAB.DAT", "SmithA.DAT"});

    EXPECT_EQ(result.outcome, CopyOutcome::Done);
    EXPECT_EQ(result.filesCopied, 2);
    EXPECT_EQ(questions.badFloppyTexts,
              Names{"Your floppy disc seems to have surface errors. It should have 1.44 MB of free "
                    "space but only has 1.373 MB.  You can not use this disc so please insert a "
                    "new Floppy Disc!"});
    EXPECT_EQ(fakes.ui.messages[0], (Message{"Please insert disc number-1", "Backup Disc Number"}));
    EXPECT_EQ(namesIn(disc), Names{"BACKUP"});
    EXPECT_EQ(namesIn(disc / "BACKUP"), (Names{"NESTAB.DAT", "SmithA.DAT"}));
    EXPECT_EQ(discNumber, 1);
}

TEST_F(FloppyBackupTest, AFileWithoutHalfItsSizeToSpareAsksForTheNextDisc)
{
    const std::uint64_t size = fs::file_size(data / "SmithA.DAT");
    // Disc 1 checks out, takes NESTAB.DAT, then has one byte too few.
    fakes.drives.freeReadings = {fullFloppyBytes, fullFloppyBytes, size + size / 2 - 1,
                                 fullFloppyBytes, size + size / 2};
    discNumber = 4; // the count goes on from earlier backups in the run
    const CopyResult result = run({"NESTAB.DAT", "SmithA.DAT"});
    EXPECT_EQ(result.outcome, CopyOutcome::Done);
    EXPECT_EQ(discNumber, 6);
    EXPECT_EQ(fakes.ui.titles(), (Names{"Backup Disc Number", "Backup Disc Number"}));
    EXPECT_EQ(fakes.ui.messages[1].text, "Please insert disc number-6");
    // The second disc is the same folder here: cleared again before SmithA.DAT.
    EXPECT_EQ(namesIn(disc / "BACKUP"), Names{"SmithA.DAT"});
}

TEST_F(FloppyBackupTest, NothingIsDeletedWithoutAGoodDiscOfItsOwn)
{
    fakes.drives.freeReadings = {fullFloppyBytes - 1};
    questions.newFloppies = {false};
    EXPECT_EQ(run({"NESTAB.DAT"}).outcome, CopyOutcome::Abandoned);
    EXPECT_EQ(progress.texts.back(), "Faulty Disc!  Please insert new disc");

    fakes.drives.freeReadings = {fullFloppyBytes};
    fakes.drives.ownMount = false;
    EXPECT_EQ(run({"NESTAB.DAT"}).outcome, CopyOutcome::Abandoned);
    EXPECT_EQ(fakes.ui.titles().back(), "Not a Removable Disc");
    EXPECT_EQ(namesIn(disc), Names{"old"});
}

// A backup folder with a backup in it, names in mixed case and the program
// file among them.
class RestoreTest : public BackupTest {
protected:
    void SetUp() override
    {
        BackupTest::SetUp();
        backup = temp.root() / "Backup";
        fs::create_directories(backup / "sub");
        for (const char* name : {"FIDEX.CTL", "SmithA.DAT", "purrlodge.exe", "PurrLodge.EXE"})
            put(backup / name, std::string("backed up ") + name);
    }

    RestoreResult restore()
    {
        return restoreFromBackup((backup / "").string(), dataPath(), fakes.ui, progress);
    }

    // What the data folder holds: every name and its bytes.
    [[nodiscard]] std::map<std::string, std::string> dataContents() const
    {
        std::map<std::string, std::string> contents;
        for (const auto& entry : fs::directory_iterator(data))
            contents[entry.path().filename().string()] =
                entry.is_directory() ? "folder" : fileBytes(entry.path());
        return contents;
    }

    fs::path backup;
};

TEST_F(RestoreTest, TheBackupReplacesTheDataFilesButNeverBringsTheProgramFile)
{
    const RestoreResult result = restore();
    EXPECT_EQ(result.outcome, RestoreOutcome::Restored);
    EXPECT_EQ(result.filesCopied, 2);
    EXPECT_EQ(namesIn(data), (Names{"FIDEX.CTL", "SmithA.DAT", "pictures"}));
    EXPECT_EQ(fileBytes(data / "SmithA.DAT"), "backed up SmithA.DAT");
    EXPECT_FALSE(fs::exists(restoreWorkFolder(dataPath())));
    EXPECT_TRUE(fakes.ui.messages.empty());
}

TEST_F(RestoreTest, ARestoreThatStopsHalfWayLeavesTheDataFolderAsItWas)
{
    const auto before = dataContents();
    // The backup disc is pulled out after the first file.
    progress.atCall = {1, [this] { fs::remove(backup / "SmithA.DAT"); }};
    EXPECT_EQ(restore().outcome, RestoreOutcome::Failed);
    EXPECT_EQ(fakes.ui.titles(), Names{"Restore Failed"});
    EXPECT_EQ(dataContents(), before);
    EXPECT_FALSE(fs::exists(restoreWorkFolder(dataPath())));

    progress.atCall.reset();
    put(backup / "SmithA.DAT", "again");
    progress.cancelFromCall = progress.calls + 1;
    EXPECT_EQ(restore().outcome, RestoreOutcome::Cancelled);
    EXPECT_EQ(dataContents(), before);

    fs::remove(backup / "FIDEX.CTL");
    EXPECT_EQ(restore().outcome, RestoreOutcome::NoBackup);
    EXPECT_EQ(fakes.ui.titles().back(), "No Backup Found");
    EXPECT_EQ(dataContents(), before);
}

TEST(BackupWhereabouts, TextsShowTheFoldersAsThePersonKnowsThem)
{
    testing::FakePorts fakes;
    fakes.clock.setUtc(2026, 11, 25, 14, 5);
    EXPECT_EQ(lastBackupText(fakes.profile, fakes.clock), "    You Have No Data Backed Up!");
    fakes.profile.values["lastbkdate"] = std::to_string(fakes.clock.now());
    fakes.profile.values["currentdrive"] = "D";
    EXPECT_EQ(lastBackupText(fakes.profile, fakes.clock),
              "Last Backup was to folder     'D:\\MyCatData'\n     at 14:05 hrs on on Wednesday "
              "25th November 2026");

    fakes.profile.values["defbkdir"] = "CatSafe";
    fakes.drives.roots['D'] = "/media/stick/";
    const StuffWhereabouts where =
        stuffWhereabouts("/home/ann/Cats/", fakes.profile, fakes.drives, "/opt/purrlodge");
    EXPECT_EQ(where.dataFolder, "Your active data is currently in folder:\n   /HOME/ANN/CATS/");
    EXPECT_EQ(where.backupFolder, "Your Backup data is currently in folder:\n    D\\:CATSAFE");
    EXPECT_EQ(where.programFolder,
              "Your active Purrlodge program is in folder:\n    /opt/purrlodge");
    EXPECT_EQ(where.onThisComputer, "On this computer your data is in /home/ann/Cats/\nand your "
                                    "backup in /media/stick/CatSafe/.");
}

} // namespace
} // namespace purrlodge
