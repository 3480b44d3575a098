// Global Search with every group ticked for a common letter fills the results
// list with thousands of lines. Opening that list should cost about what a
// plain list widget with the same lines costs; both are measured here, from
// construction until the window has been laid out and painted once.
#include <benchmark/benchmark.h>
#include <memory>
#include <string>
#include <vector>

#include <QApplication>
#include <QEvent>
#include <QListWidget>

#include "clients/GlobalSearch.h"
#include "gui/Text1252.h"
#include "gui/clients/TDlg38.h"
#include "store/DataFolder.h"
#include "support/DataSetGenerator.h"
#include "support/FakePorts.h"
#include "support/TempFolder.h"

namespace purrlodge {
namespace {

// The lines of a Global Search with every group ticked for a common letter,
// case independent, over a full data set: nearly 9,000 of them.
std::vector<std::string> searchResultLines()
{
    const testing::TempFolder temp;
    testing::FakeUi ui;
    const DataFolder folder(temp.path(), ui);
    const ClientIndex index = testing::generateDataSet(folder, maxClients, 7);
    return globalSearch(folder, index, {"e", false, GlobalSearchGroups::all()}).lines;
}

// Processes events until the list has painted its items once.
class PaintWatch : public QObject {
public:
    explicit PaintWatch(QListWidget* list) { list->viewport()->installEventFilter(this); }

    void waitForPaint()
    {
        for (int round = 0; !painted_ && round < 1000; ++round)
            QApplication::processEvents();
    }

protected:
    bool eventFilter(QObject* watched, QEvent* event) override
    {
        if (event->type() == QEvent::Paint)
            painted_ = true;
        return QObject::eventFilter(watched, event);
    }

private:
    bool painted_ = false;
};

void BM_StockListWidget(benchmark::State& state)
{
    const std::vector<std::string> lines = searchResultLines();
    for (auto _ : state) {
        auto list = std::make_unique<QListWidget>();
        QStringList items;
        items.reserve(static_cast<qsizetype>(lines.size()));
        for (const auto& line : lines)
            items.append(fromWindows1252(line));
        list->addItems(items);
        PaintWatch watch(list.get());
        list->show();
        watch.waitForPaint();
        list.reset();
        QApplication::sendPostedEvents(nullptr, QEvent::DeferredDelete);
    }
    state.counters["lines"] = static_cast<double>(lines.size());
}

void BM_GlobalSearchResultsDialog(benchmark::State& state)
{
    GlobalSearchResult result;
    result.lines = searchResultLines();
    result.showDetails = true;
    for (auto _ : state) {
        auto dialog = std::make_unique<TDlg38>(result, TDlg38::ShowDetails());
        PaintWatch watch(dialog->findChild<QListWidget*>());
        dialog->show();
        watch.waitForPaint();
        dialog.reset();
        QApplication::sendPostedEvents(nullptr, QEvent::DeferredDelete);
    }
    state.counters["lines"] = static_cast<double>(result.lines.size());
}

BENCHMARK(BM_StockListWidget)->Unit(benchmark::kMillisecond)->UseRealTime();
BENCHMARK(BM_GlobalSearchResultsDialog)->Unit(benchmark::kMillisecond)->UseRealTime();

} // namespace
} // namespace purrlodge
