#include <gtest/gtest.h>

#include "app/Session.h"
#include "app/commands/PeriodReports.h"
#include "support/DataSetGenerator.h"
#include "support/FakePeriodReportsQuestions.h"
#include "support/FakePorts.h"
#include "support/TempFolder.h"

namespace purrlodge {
namespace {

using Jobs = std::vector<testing::FakePrinter::Job>;

TEST(ClientUsageCommand, AsksUntilThePeriodIsGoodThenShowsAndPrintsEachReport)
{
    testing::TempFolder temp;
    testing::FakePorts fakes;
    fakes.clock.setUtc(2024, 3, 20);
    Session session{fakes.ports(), temp.path()};
    session.currentYear = 2024;
    session.establishment.name.set("Whiskers Lodge");
    session.index = testing::generateDataSet(session.folder, 40, 5);

    testing::FakePeriodReportsQuestions questions;
    questions.periods = {{"31/01/24", "01/01/24"}, {"1/1/24", "31/3/2024"}};
    questions.toPrint = {PeriodReport::DaysUse, PeriodReport::ClientUsage};
    showClientUsage(session, questions);

    EXPECT_EQ(questions.initialPeriod, (ReportPeriod{"01/01/24", "20/03/24"}));
    EXPECT_EQ(fakes.ui.titles(), std::vector<std::string>{"Report Period"});
    ASSERT_EQ(questions.shown.size(), 1u);
    const PeriodReportsView& view = questions.shown[0];
    EXPECT_EQ(view.period, "01/01/24 to 31/03/24");
    EXPECT_EQ(view.figures.months.size(), 3u);
    EXPECT_EQ(view.figures.totals.accounts, 40 * 6) << "six of each ten arrive by March";
    Jobs pages(4, {"Client Usage", false});
    pages.insert(pages.begin(), {"Days Use", false});
    EXPECT_EQ(fakes.printer.jobs, pages);

    questions.periods.clear();
    fakes.printer.jobs.clear();
    showClientUsage(session, questions);
    EXPECT_EQ(questions.shown.size(), 1u) << "Cancel shows nothing";
    EXPECT_TRUE(fakes.printer.jobs.empty());
}

} // namespace
} // namespace purrlodge
