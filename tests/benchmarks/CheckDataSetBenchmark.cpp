// purrlodge-cli check reads every file of the data set: on a full data set
// (599 clients, ten accounts each) it must answer at once.
#include <benchmark/benchmark.h>

#include "housekeeping/DataSetCheck.h"
#include "store/DataFolder.h"
#include "support/DataSetGenerator.h"
#include "support/FakePorts.h"
#include "support/TempFolder.h"

namespace purrlodge {
namespace {

void checkAFullDataSet(benchmark::State& state)
{
    testing::TempFolder temp;
    testing::FakeUi ui;
    const DataFolder folder(temp.path(), ui);
    static_cast<void>(testing::generateDataSet(folder, maxClients, 7));
    for (auto _ : state)
        benchmark::DoNotOptimize(checkDataSet(folder));
}
BENCHMARK(checkAFullDataSet)->Unit(benchmark::kMillisecond);

} // namespace
} // namespace purrlodge
