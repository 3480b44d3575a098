#include "store/Windows1252.h"

#include <filesystem>
#include <gtest/gtest.h>

#include "store/DataFolder.h"
#include "support/FakePorts.h"
#include "support/TempFolder.h"

namespace purrlodge {
namespace {

TEST(Windows1252, EveryByteRoundTripsThroughUnicode)
{
    for (int byte = 0; byte < 256; ++byte) {
        const std::string text(1, static_cast<char>(byte));
        EXPECT_EQ(windows1252FromUtf8(utf8FromWindows1252(text)), text) << byte;
    }
    EXPECT_EQ(utf8FromWindows1252("\x80\xA3"), "\xE2\x82\xAC\xC2\xA3");
    EXPECT_EQ(windows1252FromUtf8("\xD0\x96 \xFF"), "? ?") << "no Cyrillic in 1252, no stray bytes";
}

TEST(Windows1252, FoldersWithAccentsAreUnicodeOnDisc)
{
    testing::TempFolder temp;
    testing::FakeUi ui;
    const std::string folder = windows1252Of(temp.root()) + "/Caf\xE9/";
    std::filesystem::create_directory(nativePath(folder));
    DataFolder data(folder, ui);
    const char block[3] = {'a', 'b', 'c'};
    ASSERT_TRUE(data.writeBytes("M\xFCller.DAT", block, sizeof block));
    EXPECT_TRUE(std::filesystem::exists(temp.root() / "Caf\xC3\xA9" / "M\xC3\xBCller.DAT"));
    EXPECT_TRUE(data.existsIgnoringCase("m\xDCLLER.dat"));
}

} // namespace
} // namespace purrlodge
