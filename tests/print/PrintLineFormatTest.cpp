#include "print/PrintLineFormat.h"

#include <gtest/gtest.h>

#include "print/PrintBuffer.h"
#include "store/RandomDraw.h"
#include "support/FakePorts.h"

namespace purrlodge {
namespace {

// Whole lines are drawn field by field in PageLayoutTest; here the edges of the fields.
TEST(PrintLineFormat, FieldsAreReadAtoiStyleAndTheSizeIsClampedIntoTheTable)
{
    const ParsedPrintLine heading = parsePrintLine("0b, 20, 150, 2, n, 000, C");
    EXPECT_TRUE(heading.bold && heading.sizeIndex == 0 && heading.alignment == 'C');
    EXPECT_EQ(heading.face, "CloisterBlack BT");
    // Only a one-digit size can carry the bold mark; 12 is past the table and
    // is read as its smallest size. A field that does not start with a number reads as 0.
    const ParsedPrintLine twoDigits = parsePrintLine("12b, x, 0, 1, n, 000, A");
    EXPECT_FALSE(twoDigits.bold);
    EXPECT_EQ(twoDigits.sizeIndex, 5);
    EXPECT_EQ(twoDigits.column, 0);
    EXPECT_EQ(parsePrintLine("6, 4, 0, 1, n, 000, A").sizeIndex, 5);
    EXPECT_EQ(parsePrintLine("-1, 4, 0, 1, n, 000, A").sizeIndex, 0);
    EXPECT_EQ(withoutLastField("A"), "") << "no comma, no fields left";
}

TEST(PrintLineFormat, ColourDigitsFacesAndCellHeights)
{
    const auto colour = [](std::string_view field) {
        return parsePrintLine("3, 4, 0, 1, n, " + std::string(field) + ", A").colour;
    };
    EXPECT_EQ(colour("900"), (Rgb{254, 0, 0})) << "full intensity is 254";
    EXPECT_EQ(colour("345"), (Rgb{84, 113, 141}));
    EXPECT_EQ(colour("678"), (Rgb{169, 198, 226}));
    EXPECT_EQ(colour("x1009"), (Rgb{0, 0, 254})) << "the last three characters count";
    EXPECT_EQ(colour("/:9"), (Rgb{0, 0, 254})) << "characters beside the digits read as 0";
    EXPECT_EQ(colour("9"), (Rgb{0, 0, 254})) << "missing leading digits read as 0";
    EXPECT_EQ(parsePrintLine("3, 4, 0, 1, n").colour, Rgb{}) << "no colour field at all";

    EXPECT_EQ(printFaceName(0), "Digital SF");
    EXPECT_EQ(printFaceName(6), "") << "6 to 8 name the default face";
    EXPECT_TRUE(printFaceName(9).empty() && printFaceName(-1).empty()) << "outside the table";

    const int heights[] = {300, 240, 171, 141, 126, 85};
    for (int size = 0; size <= 5; ++size)
        EXPECT_EQ(printCellHeight(600, size), heights[size]) << size;
    EXPECT_EQ(printCellHeight(301, 0), 150) << "truncated";
}

TEST(PrintLineFormat, RecolouringReplacesTheColourFieldAndKeepsTheBlanks)
{
    testing::FakeClock clock(1234);
    testing::FakeRandom random({13, 7});
    RandomDraw draw(random, clock);
    const std::string_view name = "0b, 8, 50, 2, u, 000, C";

    EXPECT_EQ(recolourFormat(name, 4, draw), "0b,  8,  50,  2,  u, 900,  C");
    std::string colours; // schemes 0 to 9; any other index but 10 is black
    for (int index : {0, 9, 11, -1})
        colours += recolourFormat(name, index, draw).substr(21, 3) + " ";
    EXPECT_EQ(colours, "009 000 000 000 ");
    EXPECT_TRUE(random.seeds.empty()) << "only 10 draws";

    // 10 draws one of the first ten schemes: 13 % 10 = 3, then 7.
    EXPECT_EQ(recolourFormat(name, 10, draw), "0b,  8,  50,  2,  u, 050,  C");
    EXPECT_EQ(recolourFormat(name, 10, draw), "0b,  8,  50,  2,  u, 550,  C");
    EXPECT_EQ(random.seeds, (std::vector<std::uint32_t>{1234, 3}));

    EXPECT_EQ(recolourFormat("3,4", 2, draw), "3, 4, , , , 090, ") << "a short line";
    EXPECT_EQ(recolourFormat("1,2,3,4,5,6,7,8", 2, draw), "1, 2, 3, 4, 5, 090, 7,8");
    EXPECT_EQ(recolourFormat(std::string(60, 'x') + ",1,2,3,4,5,C", 2, draw).size(),
              printFormatWidth);
}

} // namespace
} // namespace purrlodge
