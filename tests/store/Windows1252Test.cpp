#include "store/Windows1252.h"

#include <gtest/gtest.h>

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

} // namespace
} // namespace purrlodge
