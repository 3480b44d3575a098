// The period reports read every account book of the data folder: on a full
// data set (599 clients, ten accounts each) all three must open at once.
#include <benchmark/benchmark.h>

#include "housekeeping/PeriodReportTables.h"
#include "housekeeping/PeriodReports.h"
#include "store/DataFolder.h"
#include "store/Dates.h"
#include "support/DataSetGenerator.h"
#include "support/FakePorts.h"
#include "support/TempFolder.h"

namespace purrlodge {
namespace {

void gatherThePeriodReportsOfAFullDataSet(benchmark::State& state)
{
    testing::TempFolder temp;
    testing::FakeUi ui;
    const DataFolder folder(temp.path(), ui);
    const ClientIndex index = testing::generateDataSet(folder, maxClients, 7);
    for (auto _ : state) {
        const PeriodFigures figures = gatherPeriodFigures(folder, index, dateToNumber("01/01/24"),
                                                          dateToNumber("31/12/24"), false);
        for (PeriodReport report :
             {PeriodReport::FinancialSummary, PeriodReport::DaysUse, PeriodReport::ClientUsage}) {
            const std::vector<ReportTable> tables = periodReportTables(report, figures, 0xA3);
            benchmark::DoNotOptimize(tables);
        }
    }
}
BENCHMARK(gatherThePeriodReportsOfAFullDataSet)->Unit(benchmark::kMillisecond);

} // namespace
} // namespace purrlodge
