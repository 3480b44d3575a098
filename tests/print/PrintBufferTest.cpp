#include "print/PrintBuffer.h"

#include <gtest/gtest.h>

namespace purrlodge {
namespace {

TEST(PrintBuffer, SlotsHoldTheirWidthsAndAHundredLinesAndClearingKeepsThePreviousLineTop)
{
    const std::string line(120, 't'), format(48, 'f');
    PrintBuffer buffer;
    buffer.add(line, format);
    buffer.add(line + "t", format + "f");
    EXPECT_EQ(buffer.texts[0] + buffer.formats[0], line + format);
    EXPECT_EQ(buffer.texts[1] + buffer.formats[1], line + format);
    // A zero byte ends a line, as a "%c" of sign 0 would end it.
    buffer.add("Board total " + std::string(1, '\0') + "5.00", "3, 6, 0, 1, n, 000, A");
    EXPECT_EQ(buffer.texts[2], "Board total ");
    for (int slot = 3; slot < 100; ++slot)
        buffer.add("line", "3, 4, 0, 1, n, 000, A");
    buffer.add("one too many", "3, 4, 0, 1, n, 000, A");
    EXPECT_EQ(buffer.count, 100);
    EXPECT_EQ(buffer.texts[99], "line");

    buffer.previousLineTop = 77;
    buffer.pageTexts = {"x", "y", "z"};
    buffer.clear();
    EXPECT_EQ(buffer.count, 0);
    EXPECT_EQ(buffer.texts[0] + buffer.formats[99] + buffer.pageTexts[2], "z");
    buffer.clearWithPageTexts();
    EXPECT_EQ(buffer.pageTexts, (std::array<std::string, 3>{}));
    EXPECT_EQ(buffer.previousLineTop, 77);

    // The blank page's count of -1 is filled again from the first slot.
    buffer.count = -1;
    buffer.add("a", "3, 4, 0, 1, n, 000, A");
    EXPECT_EQ(buffer.count, 1);
    EXPECT_EQ(buffer.texts[0], "a");
}

} // namespace
} // namespace purrlodge
