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

} // namespace
} // namespace purrlodge
