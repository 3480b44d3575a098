#include "app/DataFolderSetup.h"
#include "store/FolderTools.h"

#include <filesystem>
#include <fstream>
#include <gtest/gtest.h>

#include "app/ProfileDrives.h"
#include "support/FakePorts.h"
#include "support/FakeQuestions.h"
#include "support/TempFolder.h"

namespace purrlodge {
namespace {

namespace fs = std::filesystem;
using testing::FakePorts;
using testing::TempFolder;

void touch(const fs::path& file)
{
    std::ofstream(file) << "x";
}

class DataFolderSetupTest : public ::testing::Test {
protected:
    std::optional<int> change(const std::string& typed)
    {
        return acceptChangeDataSource(typed, fake.profile, fake.ui, asked);
    }
    std::optional<int> setUp(const std::string& typed)
    {
        return acceptDirectorySetup(typed, fake.profile, fake.ui, asked);
    }

    TempFolder temp;
    FakePorts fake;
    testing::ScriptedSetupQuestions questions;
    DataFolderQuestions& asked = static_cast<ChangeDataSetQuestions&>(questions);
};

TEST_F(DataFolderSetupTest, DirectorySetupRegistersAFolderWithDataOnlyAfterDirectoryCheck)
{
    const std::vector<Message> notRegistered{
        {"The directory was not registered", "Set Default Directory"}};
    fake.profile.failWrites = true; // no confirmation until CurrentDir was written
    EXPECT_EQ(setUp(temp.path() + "cats/data"), 0);
    EXPECT_EQ(fake.ui.messages, notRegistered);
    fake.ui.messages.clear();
    fake.profile.failWrites = false;
    const std::string folder = temp.path() + "cats/data/";
    const Message confirmation{"OK, '" + folder +
                                   "' is now your active directory. Please restart the program",
                               "Set Default Directory"};
    EXPECT_EQ(setUp(temp.path() + "cats/data"), 1);
    EXPECT_TRUE(fs::is_directory(folder));
    EXPECT_EQ(fake.profile.read("CurrentDir"), folder);
    EXPECT_EQ(fake.ui.messages, std::vector<Message>{confirmation});

    // A folder with data is confirmed twice, as it always was, or not at all.
    touch(folder + "FIDEX.CTL");
    questions.directoryCheckAnswers = {true, false};
    EXPECT_EQ(setUp(folder), 1);
    EXPECT_EQ(fake.ui.messages, std::vector<Message>(3, confirmation));
    fake.ui.messages.clear();
    fake.profile.writes.clear();
    EXPECT_EQ(setUp(folder), 0);
    EXPECT_EQ(fake.ui.messages, notRegistered);
    EXPECT_TRUE(fake.profile.writes.empty());
}

TEST_F(DataFolderSetupTest, AFolderTooLongForTheSettingsIsRefusedNotCut)
{
    // 80 characters with the separator fit; one more would be cut on reading.
    const std::string base = temp.path();
    const std::string fits = base + std::string(maxDataFolderLength - 1 - base.size(), 'f');
    const std::string tooLong = fits + "g";
    for (const bool changing : {false, true}) {
        SCOPED_TRACE(changing);
        fake.ui.messages.clear();
        fake.profile.writes.clear();
        EXPECT_EQ(changing ? change(tooLong) : setUp(tooLong), std::nullopt);
        EXPECT_EQ(fake.ui.titles(), std::vector<std::string>{"Folder Name Too Long"});
        EXPECT_TRUE(fake.profile.writes.empty());
        EXPECT_FALSE(fs::exists(tooLong));
    }
    EXPECT_EQ(setUp(fits), 1);
    EXPECT_EQ(fake.profile.read("CurrentDir"), fits + "/");
}

TEST_F(DataFolderSetupTest, ChangeDataSourceAsksOnlyAboutExistingFolders)
{
    // A new folder is made and registered without a question.
    EXPECT_EQ(change(temp.path() + "new/data"), 1);
    EXPECT_EQ(fake.profile.read("CurrentDir"), temp.path() + "new/data/");

    // An existing folder without data is registered whatever New Directory answers.
    EXPECT_EQ(change(temp.path()), 1);
    EXPECT_EQ(questions.newDirectoriesAsked, std::vector<std::string>{temp.path()});
    EXPECT_EQ(fake.profile.read("CurrentDir"), temp.path());

    // A folder with data needs Yes in Directory Check; No leaves the dialog open.
    touch(temp.path() + "Fidex.ctl"); // a data set from a case-blind file system
    questions.directoryCheckAnswers = {false, true};
    fake.ui.messages.clear();
    fake.profile.writes.clear();
    EXPECT_EQ(change(temp.path()), std::nullopt);
    EXPECT_TRUE(fake.ui.messages.empty() && fake.profile.writes.empty());
    EXPECT_EQ(change(temp.path()), 1);
    EXPECT_EQ(fake.ui.titles(), std::vector<std::string>{"Set Default Directory"});
    EXPECT_EQ(questions.newDirectoriesAsked.size(), 1U);

    // A file in the way: the chain maker makes nothing and says so.
    touch(temp.path() + "file");
    EXPECT_EQ(makeFolderChain(temp.path() + "file/sub/"), 0);
}

TEST_F(DataFolderSetupTest, DeleterClearsFilesAndSubFoldersWhenAskedAndReportsFailures)
{
    const fs::path disc = temp.root() / "disc";
    fs::create_directories(disc / "BACKUP" / "deeper");
    touch(disc / "a.DAT");
    touch(disc / "BACKUP" / "deeper" / "c.DAT");

    // Not descending leaves the sub-folder, so the folder cannot go.
    deleteFolderContents(fake.ui, disc.string(), false, true);
    EXPECT_FALSE(fs::exists(disc / "a.DAT"));
    ASSERT_EQ(fake.ui.titles(), std::vector<std::string>{"Error"});
    const std::string told = "error deleting directory: " + disc.string() + "\nError " +
                             std::to_string(ENOTEMPTY) + " (ENOTEMPTY) ";
    EXPECT_EQ(fake.ui.messages[0].text.substr(0, told.size()), told);
    fake.ui.messages.clear();
    deleteFolderContents(fake.ui, disc.string(), true, false);
    EXPECT_TRUE(fs::is_empty(disc) && fake.ui.messages.empty()) << "every level; the folder kept";
}

#ifndef _WIN32 // on Windows a letter is its own drive
TEST(ProfileDrivesTest, LettersNameTheirSettingOrHomeForC)
{
    testing::FakeProfile profile;
    profile.values["drivea"] = "/media/floppy";
    const ProfileDrives drives(profile, "/home/cattery");
    EXPECT_EQ(drives.rootOf('a'), "/media/floppy/");
    EXPECT_EQ(drives.rootOf('C'), "/home/cattery/");
    EXPECT_EQ(drives.rootOf('D'), std::nullopt);
    EXPECT_EQ(drives.freeBytes("/no/such/folder/"), std::nullopt);
}
#endif

} // namespace
} // namespace purrlodge
