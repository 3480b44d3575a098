// A backup to a folder copies every file of a full data set (599 clients,
// ten accounts each). It should take no longer than 1.3 times what `cp`
// takes for the same files: compare the two benchmarks below.
#include <benchmark/benchmark.h>
#include <cstdlib>
#include <filesystem>

#include "housekeeping/FolderBackup.h"
#include "store/DataFolder.h"
#include "support/DataSetGenerator.h"
#include "support/FakeBackupQuestions.h"
#include "support/FakePorts.h"
#include "support/TempFolder.h"

namespace purrlodge {
namespace {

namespace fs = std::filesystem;

struct FullDataSet {
    FullDataSet()
    {
        fs::create_directories(temp.root() / "Data");
        fs::create_directories(temp.root() / "Backup");
        const DataFolder folder(data(), ui);
        testing::generateDataSet(folder, maxClients, 11);
    }
    [[nodiscard]] std::string data() const { return (temp.root() / "Data" / "").string(); }
    [[nodiscard]] std::string backup() const { return (temp.root() / "Backup" / "").string(); }

    testing::TempFolder temp;
    testing::FakeUi ui;
};

void backupOfAFullDataSetToAFolder(benchmark::State& state)
{
    FullDataSet set;
    testing::RecordingProgress progress;
    for (auto _ : state) {
        const CopyResult result = backupToFolder(set.data(), set.backup(), set.ui, progress);
        progress.texts.clear();
        state.counters["files"] = result.filesCopied;
    }
}
BENCHMARK(backupOfAFullDataSetToAFolder)->Unit(benchmark::kMillisecond);

// The same files with the system's own copy, the old ones removed first as
// the backup does.
void cpOfTheSameFiles(benchmark::State& state)
{
    FullDataSet set;
    const std::string command =
        "rm -f '" + set.backup() + "'* && cp '" + set.data() + "'* '" + set.backup() + "'";
    for (auto _ : state) {
        if (std::system(command.c_str()) != 0)
            state.SkipWithError("cp failed");
    }
}
BENCHMARK(cpOfTheSameFiles)->Unit(benchmark::kMillisecond);

} // namespace
} // namespace purrlodge
