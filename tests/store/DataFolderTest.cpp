#include "store/DataFolder.h"

#include <filesystem>
#include <fstream>
#include <gtest/gtest.h>
#include <iterator>
#include <string>

#include "store/Windows1252.h"
#include "support/Bytes.h"
#include "support/FakePorts.h"
#include "support/TempFolder.h"

namespace purrlodge {
namespace {

// The data folder's name has an accent, which the disc spells in Unicode.
class DataFolderTest : public ::testing::Test {
protected:
    DataFolderTest() { std::filesystem::create_directory(onDisc); }

    testing::TempFolder temp;
    const std::filesystem::path onDisc = temp.root() / u8"Caf\u00e9";
    testing::FakeUi ui;
    DataFolder folder{windows1252Of(temp.root()) + "/Caf\xE9/", ui};
};

TEST_F(DataFolderTest, ReadsClearTheWholeBlockFirst)
{
    std::filesystem::create_directory(onDisc / "FOLDER.DAT");
    std::ofstream(onDisc / u8"M\u00fcller.DAT") << "abc";
    for (const auto& [name, held] : {std::pair<const char*, std::string>{"NOBODY.DAT", ""},
                                     {"FOLDER.DAT", ""},
                                     {"M\xFCller.DAT", "abc"}}) {
        char block[6] = {'s', 't', 'a', 'l', 'e', '!'};
        EXPECT_EQ(folder.readBytes(name, block, sizeof block), !held.empty()) << name;
        EXPECT_EQ(std::string(block, sizeof block), held + std::string(6 - held.size(), '\0'))
            << name;
    }
    EXPECT_TRUE(folder.existsIgnoringCase("m\xDCLLER.dat"));
    EXPECT_FALSE(folder.existsIgnoringCase("XM\xFCLLER.DAT"));
}

TEST_F(DataFolderTest, WritingKeepsTheTailOfALongerFileAndAFailureIsTold)
{
    std::ofstream(onDisc / "BOOK.ACR") << "ooooooooooTAIL";
    ASSERT_TRUE(folder.writeBytes("BOOK.ACR", "new!", 4));
    EXPECT_EQ(testing::fileBytes(onDisc / "BOOK.ACR"), "new!ooooooTAIL");
    const std::filesystem::directory_iterator files(onDisc);
    EXPECT_EQ(std::distance(begin(files), end(files)), 1) << "no temporary file is left";
    EXPECT_TRUE(ui.messages.empty());

    DataFolder missing(temp.path() + "no-such-folder/", ui);
    EXPECT_FALSE(missing.writeBytes("FIDEX.CTL", "new!", 4));
    ASSERT_EQ(ui.titles(), std::vector<std::string>{"File Error"});
    EXPECT_NE(ui.messages[0].text.find("no-such-folder/FIDEX.CTL"), std::string::npos);
}

TEST_F(DataFolderTest, NamesThatCouldLeaveTheFolderAreNeverOpened)
{
    std::ofstream(temp.root() / "OUTSIDE.DAT") << "secret";
    char block[6] = {};
    for (const char* name :
         {"../OUTSIDE.DAT", "..", "", "a/b.DAT", "a\\b.DAT", "C:X.DAT", "\n.DAT"}) {
        SCOPED_TRACE(name);
        EXPECT_FALSE(folder.readBytes(name, block, sizeof block));
        EXPECT_EQ(std::string(block, sizeof block), std::string(6, '\0'));
        ui.messages.clear();
        EXPECT_FALSE(folder.writeBytes(name, "new!", 4));
        EXPECT_EQ(ui.titles(), std::vector<std::string>{"File Error"});
        EXPECT_FALSE(folder.remove(name));
    }
    EXPECT_EQ(testing::fileBytes(temp.root() / "OUTSIDE.DAT"), "secret");
    EXPECT_TRUE(isPlainFileName("Smith.Ann.DAT") && isPlainFileName("M\xFCller.DAT"));
}

#ifndef _WIN32 // permission bits are POSIX
TEST_F(DataFolderTest, AWriteProtectedFileIsReportedNotReplaced)
{
    std::ofstream(onDisc / "NRATES.RTS") << "old rates";
    std::filesystem::permissions(onDisc / "NRATES.RTS", std::filesystem::perms::owner_read);
    EXPECT_FALSE(folder.writeBytes("NRATES.RTS", "new!", 4));
    ASSERT_EQ(ui.titles(), std::vector<std::string>{"File Error"});
    EXPECT_NE(ui.messages[0].text.find("write-protected"), std::string::npos);
    EXPECT_EQ(testing::fileBytes(onDisc / "NRATES.RTS"), "old rates");
}
#endif

TEST_F(DataFolderTest, AFarLongerFileIsToldOnceAndItsTailKeptWithoutReadingItWhole)
{
    // Longer than the pieces the tail is copied in, so the copy loops.
    const std::string tail(200 * 1024, 't');
    std::ofstream(onDisc / "BIG.DAT", std::ios::binary) << "0123456789" << tail;
    char block[8] = {};
    EXPECT_TRUE(folder.readBytes("BIG.DAT", block, sizeof block));
    EXPECT_TRUE(folder.readBytes("BIG.DAT", block, sizeof block));
    ASSERT_EQ(ui.titles(), std::vector<std::string>{"Data Error"}) << "told once";
    EXPECT_NE(ui.messages[0].text.find("204810 bytes long"), std::string::npos);

    ASSERT_TRUE(folder.writeBytes("BIG.DAT", "ABCDEFGH", 8));
    EXPECT_EQ(testing::fileBytes(onDisc / "BIG.DAT"), "ABCDEFGH89" + tail);
    // Twice the block is not yet far longer.
    std::ofstream(onDisc / "TWICE.DAT", std::ios::binary) << std::string(16, 'x');
    EXPECT_TRUE(folder.readBytes("TWICE.DAT", block, sizeof block));
    EXPECT_EQ(ui.messages.size(), 1U);

    // A repaired file is kept as a copy first, then holds its block alone.
    EXPECT_EQ(folder.keepDamagedCopy("BIG.DAT"), "BIG.BAD");
    EXPECT_EQ(folder.keepDamagedCopy("BIG.DAT"), "BIG1.BAD");
    ASSERT_TRUE(folder.replaceBytes("BIG.DAT", "12345678", 8));
    EXPECT_EQ(testing::fileBytes(onDisc / "BIG.DAT"), "12345678");
    EXPECT_EQ(testing::fileBytes(onDisc / "BIG.BAD"), "ABCDEFGH89" + tail);
    EXPECT_EQ(folder.keepDamagedCopy("NONE.DAT"), std::nullopt);
}

TEST_F(DataFolderTest, TemporaryFilesLeftByACrashAreRemovedAndNothingElse)
{
    std::ofstream(onDisc / "SmithAnn.DAT.new~") << "torn";
    std::ofstream(onDisc / "SmithAnn.DAT") << "whole";
    std::ofstream(onDisc / "notes.new") << "kept";
    std::filesystem::create_directory(onDisc / "sub.new~");
    EXPECT_EQ(folder.removeLeftoverTemporaryFiles(), std::vector<std::string>{"SmithAnn.DAT.new~"});
    EXPECT_EQ(testing::fileBytes(onDisc / "SmithAnn.DAT"), "whole");
    EXPECT_TRUE(std::filesystem::exists(onDisc / "notes.new"));
    EXPECT_TRUE(std::filesystem::is_directory(onDisc / "sub.new~"));
}

} // namespace
} // namespace purrlodge
