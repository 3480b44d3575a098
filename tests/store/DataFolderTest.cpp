#include "store/DataFolder.h"

#include <filesystem>
#include <fstream>
#include <gtest/gtest.h>
#include <iterator>
#include <string>

#include "store/ClientRecord.h"
#include "support/Bytes.h"
#include "support/FakePorts.h"
#include "support/TempFolder.h"

namespace purrlodge {
namespace {

class DataFolderTest : public ::testing::Test {
protected:
    void writeRaw(const std::string& name, const std::string& bytes) const
    {
        std::ofstream(folder.fileName(name), std::ios::binary) << bytes;
    }

    testing::TempFolder temp;
    testing::FakeUi ui;
    DataFolder folder{temp.path(), ui};
};

TEST_F(DataFolderTest, RoundTripsAWholeBlock)
{
    ClientRecord written{};
    written.surname.set("Smith");
    written.catBirthYear[3].set(2019);
    ASSERT_TRUE(folder.write("SmithAnn.DAT", written));
    EXPECT_EQ(std::filesystem::file_size(folder.fileName("SmithAnn.DAT")), 2763u);

    ClientRecord read;
    read.firstName.set("left over");
    ASSERT_TRUE(folder.read("SmithAnn.DAT", read));
    EXPECT_EQ(read.surname.str(), "Smith");
    EXPECT_EQ(read.catBirthYear[3].get(), 2019);
    EXPECT_TRUE(read.firstName.isEmpty());
    EXPECT_TRUE(ui.messages.empty());
}

TEST_F(DataFolderTest, MissingOrShortFilesLeaveZerosAndNamesAreFoundIgnoringCase)
{
    ClientRecord record;
    record.surname.set("stale");
    EXPECT_FALSE(folder.read("NOBODY.DAT", record));
    EXPECT_TRUE(record.surname.isEmpty());

    writeRaw("SHORT.DAT", std::string(30, '\0') + "CODE");
    record.surname.set("stale");
    EXPECT_TRUE(folder.read("SHORT.DAT", record));
    EXPECT_EQ(record.code.str(), "CODE");
    EXPECT_TRUE(record.surname.isEmpty());

    // A name is found without regard to case only when asked so.
    EXPECT_TRUE(folder.existsIgnoringCase("short.dat"));
    EXPECT_FALSE(folder.exists("short.dat"));
    EXPECT_FALSE(folder.existsIgnoringCase("XSHORT.DAT"));
}

TEST_F(DataFolderTest, WritingKeepsTheTailOfALongerFileAndLeavesNoTemporaryFile)
{
    writeRaw("BOOK.ACR", std::string(10, 'o') + "TAIL");
    const char block[4] = {'n', 'e', 'w', '!'};
    ASSERT_TRUE(folder.writeBytes("BOOK.ACR", block, sizeof block));
    EXPECT_EQ(testing::fileBytes(folder.fileName("BOOK.ACR")), "new!ooooooTAIL");
    const std::filesystem::directory_iterator files(temp.root());
    EXPECT_EQ(std::distance(begin(files), end(files)), 1);
}

TEST_F(DataFolderTest, AFailedWriteIsToldAndChangesNothing)
{
    DataFolder missing(temp.path() + "no-such-folder/", ui);
    const char block[2] = {'x', 'y'};
    EXPECT_FALSE(missing.writeBytes("FIDEX.CTL", block, sizeof block));
    ASSERT_EQ(ui.messages.size(), 1u);
    EXPECT_EQ(ui.messages[0].title, "File Error");
    EXPECT_NE(ui.messages[0].text.find("no-such-folder/FIDEX.CTL"), std::string::npos);

    // A target that cannot be replaced keeps what it held.
    std::filesystem::create_directory(temp.root() / "NESTAB.DAT");
    EXPECT_FALSE(folder.writeBytes("NESTAB.DAT", block, sizeof block));
    EXPECT_TRUE(std::filesystem::is_directory(temp.root() / "NESTAB.DAT"));
    EXPECT_EQ(ui.messages.size(), 2u);
}

} // namespace
} // namespace purrlodge
