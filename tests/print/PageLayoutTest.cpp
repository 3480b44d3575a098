#include "print/PageLayout.h"

#include <climits>
#include <gtest/gtest.h>
#include <utility>
#include <vector>

#include "print/PrintBuffer.h"
#include "support/FakeCanvas.h"

namespace purrlodge {
namespace {

using Drawn = testing::FakeCanvas::Drawn;

class PageLayoutTest : public ::testing::Test {
protected:
    // Renders the lines as one page and returns what was drawn.
    const std::vector<Drawn>& render(const std::vector<std::pair<std::string, std::string>>& lines)
    {
        buffer.clear();
        for (const auto& [text, format] : lines)
            buffer.add(text, format);
        canvas.drawn.clear();
        renderPage(buffer, canvas);
        return canvas.drawn;
    }

    PrintBuffer buffer;
    testing::FakeCanvas canvas; // 600 dpi; size 3 is 141 high, size 2 171, size 5 85
};

TEST_F(PageLayoutTest, LeftLinesMoveByTheirOffsetsAndColumns)
{
    canvas.cellSlack = 1; // the page moves on by the height the device made
    const auto& drawn = render({{"first", "3, 0, 500, 1, n, 000, A"},
                                {"raised", "2, 18, -180, 4, n, 010, A"},
                                {"beside", "3, 7, -1, 5, u, 000, A"},
                                {"next", "5b, 2, 0, 3, n, 900, Z"}});
    ASSERT_EQ(drawn.size(), 4u);
    EXPECT_EQ(drawn[0].y, 500);
    EXPECT_EQ(drawn[0].font, (CanvasFont{"Times New Roman", 141, false, false}));

    EXPECT_EQ(drawn[1].x, 2700) << "4.5 inches";
    EXPECT_EQ(drawn[1].y, 500 + 142 - 180);
    EXPECT_EQ(drawn[1].font, (CanvasFont{"Arial Narrow", 171, false, false}));
    EXPECT_EQ(drawn[1].colour, (Rgb{0, 28, 0}));

    // -1 shares the previous line's top; the page then moves on by this line.
    EXPECT_EQ(drawn[2].x, 1050) << "1.75 inches";
    EXPECT_EQ(drawn[2].y, drawn[1].y);
    EXPECT_EQ(drawn[2].font, (CanvasFont{"Arial Black", 141, false, true}));
    EXPECT_EQ(drawn[3].y, drawn[2].y + 142) << "an unknown alignment draws as A";
    EXPECT_EQ(drawn[3].x, 300);
    EXPECT_EQ(drawn[3].font, (CanvasFont{"Arial", 85, true, false}));
    EXPECT_EQ(buffer.previousLineTop, drawn[3].y);
    // Each format line has lost its last field.
    EXPECT_EQ(buffer.formats[3], "5b, 2, 0, 3, n, 900");
}

TEST_F(PageLayoutTest, CentredLinesIgnoreColumnAndOffset)
{
    canvas.charWidth = 15;
    const auto& drawn = render({{"abc", "3, 0, 100, 1, n, 000, A"},
                                {"a", "0b, 20, 150, 2, n, 000, C"},
                                {"ab", "0b, 20, 150, 2, n, 000, C"}});
    EXPECT_EQ(drawn[1].x, 2400 - 7) << "half of 15 truncates before the subtraction";
    EXPECT_EQ(drawn[1].y, 100 + 141);
    EXPECT_EQ(drawn[2].x, 2400 - 15);
    EXPECT_EQ(drawn[2].y, 100 + 141 + 300);
}

TEST_F(PageLayoutTest, FootLinesStartNoHigherThanEightAndAHalfInches)
{
    const auto& above =
        render({{"a", "3, 0, 200, 1, n, 000, A"}, {"foot", "3, 0, 0, 1, n, 000, X"}});
    EXPECT_EQ(above[1].y, 5100);
    EXPECT_EQ(above[1].x, 2400 - 20);

    const auto& below =
        render({{"a", "3, 0, 5000, 1, n, 000, A"}, {"foot", "3, 0, 0, 1, n, 000, X"}});
    EXPECT_EQ(below[1].y, 5141) << "already lower: no move";

    canvas.verticalDpi = 301;
    EXPECT_EQ(render({{"foot", "3, 0, 0, 1, n, 000, X"}})[0].y, 2559) << "8.5 x 301 rounds up";
}

TEST_F(PageLayoutTest, RightAlignmentLastsUntilLeftOrTheNextPage)
{
    const auto& drawn = render({{"abcde", "3, 16, 0, 1, n, 000, R"},
                                {"abc", "3, 16, 0, 1, n, 000, A"},
                                {"centre", "3, 16, 0, 1, n, 000, C"}, // centred either way
                                {"abc", "3, 16, 0, 1, n, 000, A"},
                                {"abc", "3, 16, 0, 1, n, 000, L"},
                                {"abc", "3, 16, 0, 1, n, 000, A"}});
    std::vector<int> rights;
    for (const Drawn& line : drawn)
        rights.push_back(2400 - line.x);
    EXPECT_EQ(rights, (std::vector<int>{50, 30, 30, 30, 0, 0}));

    render({{"abcde", "3, 16, 0, 1, n, 000, R"}});
    EXPECT_EQ(render({{"abc", "3, 16, 0, 1, n, 000, A"}})[0].x, 2400);
}

TEST_F(PageLayoutTest, BlankPagesAndTheLastTopOfThePreviousPage)
{
    render({{"a", "3, 0, 900, 1, n, 000, A"}});
    canvas.drawn.clear();
    buffer.clear();
    renderPage(buffer, canvas);
    buffer.count = -1;
    renderPage(buffer, canvas);
    EXPECT_TRUE(canvas.drawn.empty());

    // The top of the last line drawn carries over to the next job.
    EXPECT_EQ(render({{"same line", "3, 0, -1, 1, n, 000, A"}})[0].y, 900);
}

TEST_F(PageLayoutTest, DepthIsTheLowestBottomAndLeavesTheBufferAsItWas)
{
    buffer.clear();
    buffer.add("tall", "0, 0, 600, 1, n, 000, A");  // 1 to 1.5 inches
    buffer.add("beside", "5, 8, -1, 3, n, 000, A"); // shares its top, ends higher
    EXPECT_DOUBLE_EQ(printedDepth(buffer), 1.5);
    EXPECT_EQ(buffer.formats[0], "0, 0, 600, 1, n, 000, A");
}

TEST_F(PageLayoutTest, HugeNumbersStayInRange)
{
    const auto& drawn = render({{"far", "3, 2000000000, 2000000000, 1, n, 000, A"},
                                {"farther", "3, 2000000000, 2000000000, 1, n, 000, A"}});
    EXPECT_EQ(drawn[0].x, INT_MAX);
    EXPECT_EQ(drawn[1].y, INT_MAX);
}

} // namespace
} // namespace purrlodge
