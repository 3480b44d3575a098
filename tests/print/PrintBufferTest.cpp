#include "print/PrintBuffer.h"

#include <gtest/gtest.h>

namespace purrlodge {
namespace {

TEST(PrintBuffer, SlotsHoldTheirWidthsAndAHundredLines)
{
    PrintBuffer buffer;
    buffer.add(std::string(120, 't'), std::string(48, 'f'));
    buffer.add(std::string(121, 't'), std::string(49, 'f'));
    EXPECT_EQ(buffer.texts[1], buffer.texts[0]);
    EXPECT_EQ(buffer.formats[1], buffer.formats[0]);
    EXPECT_EQ(buffer.texts[0].size(), 120u);
    EXPECT_EQ(buffer.formats[0].size(), 48u);

    // A zero byte ends a line, as a "%c" of sign 0 would end it.
    buffer.add(std::string("Board total \0"
                           "5.00",
                           17),
               "3, 6, 0, 1, n, 000, A");
    EXPECT_EQ(buffer.texts[2], "Board total ");

    for (int line = 3; line < 100; ++line)
        buffer.add("line", "3, 4, 0, 1, n, 000, A");
    EXPECT_EQ(buffer.count, 100);
    buffer.add("one too many", "3, 4, 0, 1, n, 000, A");
    EXPECT_EQ(buffer.count, 100);
    EXPECT_EQ(buffer.texts[99], "line");
}

TEST(PrintBuffer, ClearingKeepsThePreviousLineTop)
{
    PrintBuffer buffer;
    buffer.add("a", "3, 4, 0, 1, n, 000, A");
    buffer.previousLineTop = 77;
    buffer.pageTexts = {"x", "y", "z"};

    buffer.clear();
    EXPECT_EQ(buffer.count, 0);
    EXPECT_EQ(buffer.texts[0], "");
    EXPECT_EQ(buffer.formats[0], "");
    EXPECT_EQ(buffer.pageTexts[2], "z");
    EXPECT_EQ(buffer.previousLineTop, 77);

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
