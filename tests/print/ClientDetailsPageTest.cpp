#include "print/ClientDetailsPage.h"

#include <gtest/gtest.h>

#include "print/PageLayout.h"
#include "print/PrintBuffer.h"
#include "support/FakeCanvas.h"

namespace purrlodge {
namespace {

TEST(ClientDetailsPageTest, TabbedPartsShareTheirLineAtTheTabColumnsAndALongListingSaysWhatIsLeft)
{
    ClientDetailsListing listing;
    listing.caption = "Client's Full Details";
    listing.lines = {"Mrs Ann Smith", "Tibbles\t[f]\tAge=4\tPersian\tChip+", "\t\tTel: 555", ""};
    PrintBuffer buffer;
    fillClientDetailsPage(buffer, listing);
    testing::FakeCanvas page;
    renderPage(buffer, page);

    std::vector<std::string> texts;
    for (const auto& line : page.drawn)
        texts.push_back(line.text);
    EXPECT_EQ(texts,
              (std::vector<std::string>{"Client's Full Details", " ", "Mrs Ann Smith", "Tibbles",
                                        "[f]", "Age=4", "Persian Chip+", "", "Tel: 555", ""}));
    const auto& tibbles = page.drawn[3];
    EXPECT_EQ(tibbles.x, 2 * 150);
    for (std::size_t part = 4; part <= 6; ++part)
        EXPECT_EQ(page.drawn[part].y, tibbles.y) << "on Tibbles' line";
    EXPECT_EQ(page.drawn[4].x, 6 * 150);
    EXPECT_EQ(page.drawn[6].x, 10 * 150) << "further tabs read as blanks";
    EXPECT_EQ(page.drawn[8].x, 8 * 150);
    EXPECT_GT(page.drawn[7].y, tibbles.y);

    // One line more than the page holds: the last says so, inside the buffer.
    const auto lastLine = [&] { return buffer.texts[static_cast<std::size_t>(buffer.count - 1)]; };
    listing.lines.assign(clientDetailsPageLines + 1, "line");
    fillClientDetailsPage(buffer, listing);
    EXPECT_EQ(buffer.count, 2 + clientDetailsPageLines + 1);
    EXPECT_EQ(lastLine(), "(1 more line on the screen)");
    listing.lines.resize(clientDetailsPageLines);
    fillClientDetailsPage(buffer, listing);
    EXPECT_EQ(lastLine(), "line");

    // Lines of many parts fill the slots before the lines run out.
    listing.lines.assign(40, "a\tb\tc\td");
    fillClientDetailsPage(buffer, listing);
    EXPECT_LE(buffer.count, printSlotCount);
    EXPECT_EQ(lastLine(), "(16 more lines on the screen)");
}

} // namespace
} // namespace purrlodge
