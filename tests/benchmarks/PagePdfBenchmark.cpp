// A printout without a printer is a page drawn into a PDF file: the client's
// account, filled and drawn, from the start of the job to the file closed.
#include <benchmark/benchmark.h>

#include <QTemporaryDir>

#include "gui/app/FontSubstitutions.h"
#include "gui/ports/QtPrinter.h"
#include "print/AccountPages.h"
#include "print/PageLayout.h"
#include "print/PrintBuffer.h"
#include "store/RandomDraw.h"
#include "support/FakePorts.h"
#include "support/SampleAccount.h"

namespace purrlodge {
namespace {

void BM_ClientsAccountToPdf(benchmark::State& state)
{
    installFontSubstitutions();
    QTemporaryDir folder;
    QtPrinter printer(folder.path());
    testing::FakePorts fakes;
    RandomDraw draw(fakes.random, fakes.clock);
    const testing::SampleAccount sample;
    const AccountPageValues values{sample.establishment, sample.client, sample.account,
                                   sample.exchange, fakes.clock};
    PrintBuffer buffer;
    for (auto _ : state) {
        fillClientAccount(buffer, values, draw);
        printer.printPage("Client's Account", false,
                          [&buffer](Canvas& canvas) { renderPage(buffer, canvas); });
    }
    static_cast<void>(printer.takeSavedFiles());
}

BENCHMARK(BM_ClientsAccountToPdf)->Unit(benchmark::kMillisecond)->UseRealTime();

} // namespace
} // namespace purrlodge
