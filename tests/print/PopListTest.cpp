#include "print/PopList.h"

#include <gtest/gtest.h>

#include "print/PrintBuffer.h"
#include "print/PrintJobRunner.h"

namespace purrlodge {
namespace {

using Lines = std::vector<std::string>;

// Keeps each job's title, prompt and page (the text and format of every slot).
struct PageRecorder : PrintJobRunner {
    struct Page {
        std::string title;
        bool prompt = false;
        Lines texts;
        Lines formats;
    };
    bool run(const std::string& title, bool prompt, PrintBuffer& buffer) override
    {
        Page page{title, prompt, {}, {}};
        for (int slot = 0; slot < buffer.count; ++slot) {
            page.texts.push_back(buffer.texts[static_cast<std::size_t>(slot)]);
            page.formats.push_back(buffer.formats[static_cast<std::size_t>(slot)]);
        }
        pages.push_back(page);
        return true;
    }
    std::vector<Page> pages;
};

std::vector<PopListName> namesCounted(int howMany)
{
    std::vector<PopListName> names;
    for (int i = 0; i < howMany; ++i)
        names.push_back({"Cat" + std::to_string(i), 40 - i});
    return names;
}

TEST(PopList, ThirtyNamesAPageTheFirstFollowingWhatTheBufferHeld)
{
    PrintBuffer buffer;
    buffer.add("Left by the last printout", "0b, 20, 150, 2, n, 000, C");
    PageRecorder jobs;
    EXPECT_EQ(printPopList(buffer, {}, 0, jobs), 0);
    EXPECT_TRUE(jobs.pages.empty()) << "no names, no page";

    EXPECT_EQ(printPopList(buffer, namesCounted(30), 30, jobs), 1);
    ASSERT_EQ(jobs.pages.size(), 1u);
    const PageRecorder::Page& page = jobs.pages[0];
    EXPECT_EQ(page.title, "pop list");
    EXPECT_FALSE(page.prompt);
    ASSERT_EQ(page.texts.size(), 34u);
    EXPECT_EQ(
        Lines(page.texts.begin(), page.texts.begin() + 5),
        (Lines{"Left by the last printout", " ", "The 30 cats whose name occurs more than once",
               " ", "Cat0           40       "}));
    EXPECT_EQ(Lines(page.formats.begin() + 1, page.formats.begin() + 5),
              (Lines{"1, 4, 0, 1, n, 000, A", "3, 4, 0, 1, n, 000, A", "3, 4, 0, 1, n, 000, A",
                     "3b, 4, 0, 1, n, 000, A"}));
    EXPECT_EQ(page.texts.back(), "Cat29          11       ");
    EXPECT_EQ(popListLine({"Mittens", 125}), "Mittens        125      ");
    EXPECT_EQ(buffer.count, 0) << "cleared after the page";

    EXPECT_EQ(printPopList(buffer, namesCounted(31), 31, jobs), 2);
    ASSERT_EQ(jobs.pages.size(), 3u);
    EXPECT_EQ(jobs.pages[1].texts.size(), 33u);
    EXPECT_EQ(jobs.pages[2].texts, (Lines{" ", "The 31 cats whose name occurs more than once", " ",
                                          "Cat30          10       "}));
}

} // namespace
} // namespace purrlodge
