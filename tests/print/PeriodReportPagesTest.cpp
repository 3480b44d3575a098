#include "print/PeriodReportPages.h"

#include <gtest/gtest.h>

#include "housekeeping/PeriodReportTables.h"
#include "print/PageLayout.h"
#include "print/PrintBuffer.h"
#include "store/Dates.h"

namespace purrlodge {
namespace {

using Lines = std::vector<std::string>;

Lines linesOf(const PrintBuffer& buffer)
{
    Lines lines;
    for (int slot = 0; slot < buffer.count; ++slot)
        lines.push_back(buffer.texts[static_cast<std::size_t>(slot)] + " | " +
                        buffer.formats[static_cast<std::size_t>(slot)]);
    return lines;
}

// Two months across a year end, and a hand-made client list.
PeriodFigures smallPeriod(int clients)
{
    PeriodFigures figures;
    figures.firstDay = dateToNumber("15/12/24");
    figures.lastDay = dateToNumber("14/01/25");
    figures.months = {{2024, 12, 17, 2, 3000, 250, 450, 2000, 3200, 10},
                      {2025, 1, 14, 1, 4000, 0, 0, 0, 4000, 17}};
    figures.totals = {0, 0, 31, 3, 7000, 250, 450, 2000, 7200, 27};
    for (int client = 1; client <= clients; ++client)
        figures.clients.push_back({"C" + std::to_string(client), "Client " + std::to_string(client),
                                   1, client * 100, (clients - client) * 2});
    return figures;
}

PeriodReportPages pagesOf(PeriodReport report, const PeriodFigures& figures)
{
    return PeriodReportPages(std::string(periodReportTitle(report)), "Whiskers Lodge",
                             "15/12/24 to 14/01/25", periodReportTables(report, figures, 0xA3));
}

TEST(PeriodReportPages, PrintTheFinancialSummaryLineByLine)
{
    const PeriodReportPages pages = pagesOf(PeriodReport::FinancialSummary, smallPeriod(1));
    ASSERT_EQ(pages.pageCount(), 1);
    PrintBuffer buffer;
    pages.fillPage(buffer, 0);
    EXPECT_EQ(linesOf(buffer), (Lines{"Whiskers Lodge | 2b, 0, 0, 1, n, 000, C",
                                      "Financial Summary | 3b, 0, 0, 3, n, 000, C",
                                      "15/12/24 to 14/01/25 | 4, 0, 0, 3, n, 000, C",
                                      "Accounts | 4b, 8, 0, 3, n, 000, R",
                                      "Board \xA3 | 4b, 12, -1, 3, n, 000, R",
                                      "Discounts \xA3 | 4b, 17, -1, 3, n, 000, R",
                                      "Extras \xA3 | 4b, 21, -1, 3, n, 000, R",
                                      "Credits \xA3 | 4b, 26, -1, 3, n, 000, R",
                                      "Balances \xA3 | 4b, 31, -1, 3, n, 000, R",
                                      "Dec 2024 | 4, 1, 0, 3, n, 000, L",
                                      "2 | 4, 8, -1, 3, n, 000, R",
                                      "30.00 | 4, 12, -1, 3, n, 000, R",
                                      "2.50 | 4, 17, -1, 3, n, 000, R",
                                      "4.50 | 4, 21, -1, 3, n, 000, R",
                                      "20.00 | 4, 26, -1, 3, n, 000, R",
                                      "32.00 | 4, 31, -1, 3, n, 000, R",
                                      "Jan 2025 | 4, 1, 0, 3, n, 000, L",
                                      "1 | 4, 8, -1, 3, n, 000, R",
                                      "40.00 | 4, 12, -1, 3, n, 000, R",
                                      "0.00 | 4, 17, -1, 3, n, 000, R",
                                      "0.00 | 4, 21, -1, 3, n, 000, R",
                                      "0.00 | 4, 26, -1, 3, n, 000, R",
                                      "40.00 | 4, 31, -1, 3, n, 000, R",
                                      "Total | 4b, 1, 0, 3, n, 000, L",
                                      "3 | 4b, 8, -1, 3, n, 000, R",
                                      "70.00 | 4b, 12, -1, 3, n, 000, R",
                                      "2.50 | 4b, 17, -1, 3, n, 000, R",
                                      "4.50 | 4b, 21, -1, 3, n, 000, R",
                                      "20.00 | 4b, 26, -1, 3, n, 000, R",
                                      "72.00 | 4b, 31, -1, 3, n, 000, R"}));
}

TEST(PeriodReportPages, FitAYearOnOnePageAndNumberTheLongerOnes)
{
    PeriodFigures figures = smallPeriod(0);
    figures.months.resize(12, figures.months[1]);
    PeriodReportPages year = pagesOf(PeriodReport::FinancialSummary, figures);
    ASSERT_EQ(year.pageCount(), 1);
    PrintBuffer buffer;
    year.fillPage(buffer, 0);
    EXPECT_EQ(buffer.count, printSlotCount);
    EXPECT_LE(printedDepth(buffer), 10.5);

    figures.months.push_back(figures.months[1]);
    const PeriodReportPages thirteenMonths = pagesOf(PeriodReport::FinancialSummary, figures);
    ASSERT_EQ(thirteenMonths.pageCount(), 2);
    thirteenMonths.fillPage(buffer, 1);
    EXPECT_EQ(buffer.texts[3], "Page 2 of 2");
    EXPECT_EQ(buffer.texts[static_cast<std::size_t>(buffer.count) - 7], "Total");
}

TEST(PeriodReportPages, PrintDaysUseWithTextBarsScaledToTheBusiestMonth)
{
    PeriodFigures figures = smallPeriod(1);
    figures.perNight = true;
    const PeriodReportPages pages = pagesOf(PeriodReport::DaysUse, figures);
    PrintBuffer buffer;
    pages.fillPage(buffer, 0);
    const Lines lines = linesOf(buffer);
    ASSERT_EQ(lines.size(), 4u + 4 + 5 + 5 + 4) << "empty cells take no slot";
    EXPECT_EQ(lines[4], "Month | 4b, 1, 0, 3, n, 000, L");
    EXPECT_EQ(lines[5], "Cat-nights | 4b, 11, -1, 3, n, 000, R");
    EXPECT_EQ(lines[8], "Dec 2024 | 4, 1, 0, 3, n, 000, L");
    EXPECT_EQ(lines[9], "10 | 4, 11, -1, 3, n, 000, R");
    EXPECT_EQ(lines[10], "17 | 4, 14, -1, 3, n, 000, R");
    EXPECT_EQ(lines[11], "0.59 | 4, 19, -1, 3, n, 000, R");
    EXPECT_EQ(lines[12], std::string(20, '|') + " | 4, 20, -1, 3, n, 000, L") << "0.59 of 1.21";
    EXPECT_EQ(lines[17], std::string(40, '|') + " | 4, 20, -1, 3, n, 000, L");
    EXPECT_EQ(lines[18], "Total | 4b, 1, 0, 3, n, 000, L");
    EXPECT_EQ(lines[21], "0.87 | 4b, 19, -1, 3, n, 000, R") << "27 cat-nights over 31 days";

    EXPECT_EQ(textBar(1, 1000, 40), "|") << "any use shows";
    EXPECT_EQ(textBar(0, 1000, 40), "");
}

TEST(PeriodReportPages, SpreadTheRankingsOverNumberedPagesThatFitThePaper)
{
    const PeriodReportPages pages = pagesOf(PeriodReport::ClientUsage, smallPeriod(31));
    ASSERT_EQ(pages.pageCount(), 4) << "30 clients a ranking, 22 rows a page";
    PrintBuffer buffer;
    pages.fillPage(buffer, 0);
    Lines lines = linesOf(buffer);
    EXPECT_EQ(lines[3], "Page 1 of 4 | 5, 31, -1, 3, n, 000, R");
    EXPECT_EQ(lines[4], "The first 30 clients by cash | 4b, 1, 0, 3, n, 000, L");
    EXPECT_EQ(lines[9], "1.  Client 31 | 4, 1, 0, 3, n, 000, L");
    EXPECT_EQ(lines[11], "31.00 | 4, 25, -1, 3, n, 000, R");
    for (int page = 0; page < pages.pageCount(); ++page) {
        pages.fillPage(buffer, page);
        EXPECT_LE(buffer.count, printSlotCount) << page;
        EXPECT_LE(printedDepth(buffer), 10.5) << page;
    }
    pages.fillPage(buffer, 1);
    lines = linesOf(buffer);
    EXPECT_EQ(lines[9], "23.  Client 9 | 4, 1, 0, 3, n, 000, L");
    EXPECT_EQ(lines.size(), 9u + 8 * 4) << "ranks 23 to 30";
    pages.fillPage(buffer, 2);
    lines = linesOf(buffer);
    EXPECT_EQ(lines[4], "The first 30 clients by days | 4b, 1, 0, 3, n, 000, L");
    EXPECT_EQ(lines[9], "1.  Client 1 | 4, 1, 0, 3, n, 000, L");
}

} // namespace
} // namespace purrlodge
