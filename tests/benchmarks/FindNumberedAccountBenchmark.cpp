// Find Numbered Account reads every account book of the data folder: on a
// full data set (599 clients, ten accounts each) it must answer at once.
#include <benchmark/benchmark.h>

#include "accounts/AccountListings.h"
#include "store/DataFolder.h"
#include "support/DataSetGenerator.h"
#include "support/FakePorts.h"
#include "support/TempFolder.h"

namespace purrlodge {
namespace {

void findNumberedAccountInAFullDataSet(benchmark::State& state)
{
    testing::TempFolder temp;
    testing::FakeUi ui;
    const DataFolder folder(temp.path(), ui);
    const ClientIndex index = testing::generateDataSet(folder, maxClients, 7);
    const int number = index.lastAccountNumber.get() - 5; // in the last book read
    for (auto _ : state) {
        const std::vector<std::string> lines = numberedAccountLines(folder, number);
        benchmark::DoNotOptimize(lines);
    }
}
BENCHMARK(findNumberedAccountInAFullDataSet)->Unit(benchmark::kMillisecond);

} // namespace
} // namespace purrlodge
