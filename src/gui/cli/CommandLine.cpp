#include "gui/cli/CommandLine.h"

#include <clocale>
#include <iostream>
#include <memory>
#include <string>
#include <vector>

#include <QGuiApplication>

#include "app/IniProfile.h"
#include "app/PortableRandom.h"
#include "app/ProfileDrives.h"
#include "app/SettingsLocation.h"
#include "app/jobs/JobUi.h"
#include "app/jobs/UnattendedJobs.h"
#include "gui/Text1252.h"
#include "gui/app/FontSubstitutions.h"
#include "gui/cli/PdfFilePrinter.h"
#include "gui/ports/SystemClock.h"
#include "store/Windows1252.h"

namespace purrlodge {

namespace {

constexpr const char* programName = "purrlodge-cli: ";

void printLine(std::ostream& stream, std::string_view prefix, std::string_view text)
{
    stream << prefix << utf8FromWindows1252(text) << '\n' << std::flush;
}

// Qt's own notes (no runtime folder set under cron, and the like) mean
// nothing to the person reading a job's output; its errors still show.
void keepQtErrorsOnly(QtMsgType type, const QMessageLogContext&, const QString& text)
{
    if (type == QtCriticalMsg || type == QtFatalMsg)
        std::cerr << programName << text.toStdString() << '\n' << std::flush;
}

// Pages are drawn with the same fonts as in the program, on the offscreen
// platform: no display is needed and no window can ever open.
std::unique_ptr<QGuiApplication> makePrintingApplication(int& argc, char** argv)
{
    qputenv("QT_QPA_PLATFORM", "offscreen");
    qInstallMessageHandler(keepQtErrorsOnly);
    auto application = std::make_unique<QGuiApplication>(argc, argv);
    // QGuiApplication sets the process locale; amounts print with a point.
    std::setlocale(LC_NUMERIC, "C");
    installFontSubstitutions();
    return application;
}

} // namespace

int runCommandLine(int argc, char** argv)
{
    const ParsedArguments parsed =
        parseJobArguments(std::vector<std::string>(argv + 1, argv + argc));
    if (parsed.help) {
        std::cout << *parsed.help << std::flush;
        return jobExit::done;
    }
    if (!parsed.request) {
        printLine(std::cerr, programName, parsed.error + " (purrlodge-cli --help for more)");
        return jobExit::usage;
    }
    const JobRequest& request = *parsed.request;

    const JobOutput output{[](std::string_view line) { printLine(std::cout, "", line); },
                           [](std::string_view line) { printLine(std::cerr, programName, line); },
                           request.verbose};
    JobUi ui(output);
    SystemClock clock;
    PortableRandom random;
    IniProfile profile(
        settingsFilePath(), [&ui](const std::string& fileName, const std::string& reason) {
            ui.showMessage({"The settings file " + fileName + " could not be saved: " + reason,
                            "File Error", MessageIcon::Exclamation});
        });
    ProfileDrives drives(profile, userHomeFolder());
    std::unique_ptr<QGuiApplication> application;
    if (request.kind == JobKind::Account)
        application = makePrintingApplication(argc, argv);
    PdfFilePrinter printer(fromWindows1252(request.pdfFile));

    const JobOutcome outcome =
        runJob(request, Ports{ui, clock, random, profile, drives, printer}, output);
    if (outcome.exitCode != jobExit::done)
        printLine(std::cerr, programName, outcome.message);
    return outcome.exitCode;
}

} // namespace purrlodge
