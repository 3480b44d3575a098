// The gui benchmarks' main: they need an application, not a screen.
#include <benchmark/benchmark.h>

#include <QApplication>

int main(int argc, char** argv)
{
    // The widgets need an application; no screen is needed to lay them out.
    qputenv("QT_QPA_PLATFORM", "offscreen");
    QApplication app(argc, argv);
    benchmark::Initialize(&argc, argv);
    if (benchmark::ReportUnrecognizedArguments(argc, argv))
        return 1;
    benchmark::RunSpecifiedBenchmarks();
    benchmark::Shutdown();
    return 0;
}
