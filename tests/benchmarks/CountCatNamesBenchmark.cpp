// Count Cat Names reads every client record and counts every cat's name: on a
// full data set (599 clients) the list must come up at once.
#include <benchmark/benchmark.h>

#include "housekeeping/NameCounts.h"
#include "store/DataFolder.h"
#include "support/DataSetGenerator.h"
#include "support/FakePorts.h"
#include "support/TempFolder.h"

namespace purrlodge {
namespace {

void countCatNamesInAFullDataSet(benchmark::State& state)
{
    testing::TempFolder temp;
    testing::FakeUi ui;
    const DataFolder folder(temp.path(), ui);
    const ClientIndex index = testing::generateDataSet(folder, maxClients, 7);
    for (auto _ : state) {
        const NameCountTable table = tallyCatNames(folder, index);
        benchmark::DoNotOptimize(nameListLines(table, NameList::Popular));
    }
}
BENCHMARK(countCatNamesInAFullDataSet)->Unit(benchmark::kMillisecond);

} // namespace
} // namespace purrlodge
