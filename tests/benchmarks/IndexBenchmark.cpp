// The index is sorted at every start and after every new client, with the
// bubble sort the file format has always used: the worst case is a full
// index in reverse order.
#include <benchmark/benchmark.h>
#include <string>

#include "store/IndexOperations.h"

namespace purrlodge {
namespace {

ClientIndex reversedFullIndex()
{
    ClientIndex index{};
    for (int i = maxClients; i > 0; --i) {
        const std::string surname =
            std::string(1, static_cast<char>('A' + i % 26)) + "ppleby-" + std::to_string(i);
        appendEntry(index, surname, "CODE" + std::to_string(i));
    }
    return index;
}

void sortFullReversedIndex(benchmark::State& state)
{
    const ClientIndex start = reversedFullIndex();
    for (auto _ : state) {
        ClientIndex index = start;
        sortIndexEntries(index);
        benchmark::DoNotOptimize(index);
    }
}
BENCHMARK(sortFullReversedIndex)->Unit(benchmark::kMillisecond);

void sortAlreadySortedIndex(benchmark::State& state)
{
    ClientIndex sorted = reversedFullIndex();
    sortIndexEntries(sorted);
    for (auto _ : state) {
        ClientIndex index = sorted;
        sortIndexEntries(index);
        benchmark::DoNotOptimize(index);
    }
}
BENCHMARK(sortAlreadySortedIndex)->Unit(benchmark::kMicrosecond);

void findLastCode(benchmark::State& state)
{
    const ClientIndex index = reversedFullIndex();
    for (auto _ : state)
        benchmark::DoNotOptimize(findCode(index, "code1"));
}
BENCHMARK(findLastCode)->Unit(benchmark::kMicrosecond);

} // namespace
} // namespace purrlodge
