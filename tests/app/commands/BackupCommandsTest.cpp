#include <filesystem>
#include <fstream>
#include <gtest/gtest.h>

#include "app/Session.h"
#include "app/commands/BackupAndRestore.h"
#include "store/ClientFiles.h"
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

// A data set of two clients in "Data"; drive C stands for the temporary
// folder, so the backup goes to its "MyCatData".
class BackupCommandsTest : public ::testing::Test {
protected:
    void SetUp() override
    {
        fs::create_directories(temp.root() / "Data");
        fakes.clock.setUtc(2026, 11, 25);
        fakes.drives.roots['C'] = temp.path();
        addClient("Smith", "SmithA");
        addClient("Jones", "JonesT");
        ASSERT_TRUE(writeIndex(session.folder, session.index));
        std::ofstream(data() / "SmithA.ACR", std::ios::binary) << "accounts";
    }

    void addClient(const char* surname, const char* code)
    {
        ClientRecord client{};
        client.surname.set(surname);
        ASSERT_TRUE(writeClientRecord(session.folder, code, client));
        appendEntry(session.index, surname, code);
    }

    [[nodiscard]] fs::path data() const { return temp.root() / "Data"; }
    [[nodiscard]] fs::path backup() const { return temp.root() / "MyCatData"; }

    // Chooses the other drive and types C, then presses OK.
    void chooseDriveC()
    {
        questions.steps.push_back([](BackupOptions& entries) {
            entries.medium = BackupMedium::OtherDrive;
            entries.drive = "c";
        });
    }

    [[nodiscard]] std::string setting(const char* key) const { return fakes.profile.read(key); }

    testing::TempFolder temp;
    testing::FakePorts fakes;
    Session session{fakes.ports(), temp.path() + "Data" + folderSeparator};
    testing::ScriptedBackupQuestions questions;
};

TEST_F(BackupCommandsTest, AFolderBackupAfterAFailedCheckCopiesTheDataAndNotesItInTheSettings)
{
    questions.steps.push_back([](BackupOptions&) {}); // OK before choosing
    chooseDriveC();
    backupMyData(session, questions);

    const BackupOptionsDialog& shown = questions.shown.at(0);
    EXPECT_EQ(shown.entries, (BackupOptions{BackupMedium::None, "MyCatData", ""}));
    EXPECT_EQ(shown.dataFilesText.substr(0, 20), "You have 4 Data File");
    EXPECT_EQ(fakes.ui.titles(), (Names{"Buttone not clicked", "Backup Result"}));
    const std::uint64_t bytes =
        fs::file_size(data() / "FIDEX.CTL") + 2 * fs::file_size(data() / "SmithA.DAT") + 8;
    EXPECT_EQ(fakes.ui.messages.back().text,
              "4 files backed up\nTotal " + std::to_string(bytes) + " Bytes");
    EXPECT_EQ(fileBytes(backup() / "SmithA.ACR"), "accounts");
    EXPECT_EQ(setting("CurrentDrive"), "C");
    EXPECT_EQ(setting("DefBkDir"), "MyCatData");
    EXPECT_EQ(setting("LastBkDate"), std::to_string(fakes.clock.now()));
    EXPECT_EQ(questions.progress.ends, 1);
}

TEST_F(BackupCommandsTest, ACancelledOrRefusedBackupLeavesTheLastBackupDate)
{
    questions.progress.cancelFromCall = 2;
    chooseDriveC();
    backupMyData(session, questions);
    EXPECT_EQ(fakes.ui.titles(), Names{"Backup Cancelled"});
    EXPECT_FALSE(fs::exists(backup() / "SmithA.DAT")) << "nothing copied after Cancel";
    EXPECT_EQ(setting("LastBkDate"), "");
    EXPECT_EQ(setting("DefBkDir"), "");

    // A folder of something else is cleared only when the person agrees.
    fs::remove_all(backup());
    fs::create_directories(backup());
    std::ofstream(backup() / "Letter.doc") << "mine";
    questions.progress.cancelFromCall.reset();
    questions.clearings = {false};
    chooseDriveC();
    backupMyData(session, questions);
    EXPECT_EQ(questions.clearingAsked, Names{(backup() / "").string()});
    EXPECT_EQ(fileBytes(backup() / "Letter.doc"), "mine");
    EXPECT_EQ(setting("LastBkDate"), "");
}

TEST_F(BackupCommandsTest, ACopyErrorStillCountsAsTheBackupMade)
{
    // The accounts vanish from the data folder after the first copy, before
    // their turn comes after JonesT.DAT.
    questions.progress.atCall = {1, [this] { fs::remove(data() / "SmithA.ACR"); }};
    chooseDriveC();
    backupMyData(session, questions);
    EXPECT_EQ(fakes.ui.messages.at(0),
              (Message{"Unable to copy \n\nFile SmithA.ACR in Directory " + session.folder.path() +
                           "\nto\nFile SmithA.ACR in Directory " + (backup() / "").string(),
                       "Copy Error"}));
    EXPECT_EQ(fakes.ui.titles().back(), "Backup Result");
    EXPECT_EQ(fakes.ui.messages.back().text.substr(0, 18), "2 files backed up\n");
    EXPECT_EQ(setting("LastBkDate"), std::to_string(fakes.clock.now()));
}

TEST_F(BackupCommandsTest, ARestoreBringsTheBackedUpRecordsBackAndReadsTheIndexAgain)
{
    chooseDriveC();
    backupMyData(session, questions);
    const std::string backedUp = fileBytes(data() / "SmithA.DAT");

    addClient("Brown", "BrownB");
    ASSERT_TRUE(writeIndex(session.folder, session.index));
    std::ofstream(data() / "SmithA.DAT", std::ios::binary) << "changed";
    session.clientCode = "SmithA";

    questions.restores = {false, true};
    restoreDataFromBackup(session, questions);
    EXPECT_EQ(fileBytes(data() / "SmithA.DAT"), "changed");

    restoreDataFromBackup(session, questions);
    EXPECT_EQ(questions.restoreAsked, (Names{"C:\\MyCatData", "C:\\MyCatData"}));
    EXPECT_EQ(fileBytes(data() / "SmithA.DAT"), backedUp);
    EXPECT_FALSE(fs::exists(data() / "BrownB.DAT"));
    EXPECT_EQ(session.index.count.get(), 2);
    EXPECT_EQ(session.clientCode, "");
    EXPECT_EQ(fakes.ui.messages.back(),
              (Message{"4 files sucessfully copied from backup to you current Data "
                       "Folder\nOperation Completed",
                       "Result"}));
}

TEST_F(BackupCommandsTest, NothingIsRestoredWithoutABackupFolder)
{
    const std::string before = fileBytes(data() / "FIDEX.CTL");
    restoreDataFromBackup(session, questions); // no backup made yet
    fakes.profile.values["currentdrive"] = "C";
    questions.restores = {true};
    restoreDataFromBackup(session, questions); // C:\MyCatData does not exist
    EXPECT_EQ(fakes.ui.titles(), (Names{"No Backup Found", "No Backup Found"}));
    EXPECT_EQ(fileBytes(data() / "FIDEX.CTL"), before);
}

} // namespace
} // namespace purrlodge
