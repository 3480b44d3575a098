#include "app/DataFolderSetup.h"

#include <filesystem>
#include <fstream>
#include <gtest/gtest.h>

#include "app/ProfileDrives.h"
#include "support/FakePorts.h"
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
    Message confirmation(const std::string& folder) const
    {
        return {"OK, '" + folder + "' is now your active directory. Please restart the program",
                "Set Default Directory"};
    }

    TempFolder temp;
    FakePorts fake;
    Ports ports = fake.ports();
};

TEST_F(DataFolderSetupTest, ChainMakerMakesEveryMissingLevelAndSaysWhetherTheFolderIsNew)
{
    const std::string twoLevels = temp.path() + "one/two/";
    EXPECT_EQ(makeFolderChain(twoLevels), 1);
    EXPECT_TRUE(fs::is_directory(twoLevels));
    EXPECT_EQ(makeFolderChain(twoLevels), 0);
    EXPECT_EQ(makeFolderChain(temp.path() + "one/three"), 1); // first level already there
    touch(temp.path() + "file");
    EXPECT_EQ(makeFolderChain(temp.path() + "file/sub/"), 0);
}

TEST_F(DataFolderSetupTest, ChangeDataSourceAsksOnlyAboutExistingFolders)
{
    // A new folder is made and registered without a question.
    const std::string folder = temp.path() + "new/data/";
    EXPECT_EQ(acceptChangeDataSource(ports, temp.path() + "new/data"), 1);
    EXPECT_TRUE(fs::is_directory(folder));
    EXPECT_EQ(fake.profile.read("CurrentDir"), folder);
    EXPECT_EQ(fake.ui.messages, std::vector<Message>{confirmation(folder)});

    // An existing folder without data is registered whatever New Directory answers.
    EXPECT_EQ(acceptChangeDataSource(ports, temp.path()), 1);
    EXPECT_EQ(fake.ui.newDirectoriesAsked, std::vector<std::string>{temp.path()});
    EXPECT_EQ(fake.profile.read("CurrentDir"), temp.path());
    EXPECT_FALSE(fs::exists(temp.path() + "FIDEX.CTL"));

    // A folder with data needs Yes in Directory Check; No leaves the dialog open.
    touch(temp.path() + "Fidex.ctl"); // a data set from a case-blind file system
    fake.ui.directoryCheckAnswers = {false, true};
    fake.ui.messages.clear();
    fake.profile.writes.clear();
    EXPECT_EQ(acceptChangeDataSource(ports, temp.path()), std::nullopt);
    EXPECT_TRUE(fake.ui.messages.empty() && fake.profile.writes.empty());
    EXPECT_EQ(acceptChangeDataSource(ports, temp.path()), 1);
    EXPECT_EQ(fake.ui.messages, std::vector<Message>{confirmation(temp.path())});
    EXPECT_EQ(fake.ui.newDirectoriesAsked.size(), 1U);
}

TEST_F(DataFolderSetupTest, DeleterClearsFilesAndSubFoldersWhenAskedAndReportsFailures)
{
    const fs::path disc = temp.root() / "disc";
    fs::create_directories(disc / "BACKUP" / "deeper");
    touch(disc / "a.DAT");
    touch(disc / "BACKUP" / "b.DAT");
    touch(disc / "BACKUP" / "deeper" / "c.DAT");

    deleteFolderContents(fake.ui, disc.string(), false, false);
    EXPECT_FALSE(fs::exists(disc / "a.DAT"));
    EXPECT_TRUE(fs::exists(disc / "BACKUP" / "b.DAT"));
    EXPECT_TRUE(fake.ui.messages.empty());

    // Not descending leaves the sub-folder, so the folder cannot go.
    deleteFolderContents(fake.ui, disc.string(), false, true);
    ASSERT_EQ(fake.ui.messages.size(), 1U);
    const std::string expected = "error deleting directory: " + disc.string() + "\nError " +
                                 std::to_string(ENOTEMPTY) + " (ENOTEMPTY) ";
    EXPECT_EQ(fake.ui.messages[0].text.substr(0, expected.size()), expected);
    EXPECT_EQ(fake.ui.messages[0].title, "Error");

    fake.ui.messages.clear();
    deleteFolderContents(fake.ui, disc.string(), true, true);
    EXPECT_FALSE(fs::exists(disc));
    EXPECT_TRUE(fake.ui.messages.empty());
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
