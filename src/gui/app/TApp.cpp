#include "gui/app/TApp.h"

#include <clocale>

#include <QDir>
#include <QStandardPaths>

#include "app/DataFolderSetup.h"
#include "app/Session.h"
#include "app/SettingsLocation.h"
#include "app/StartupSequence.h"
#include "app/StartupSwitches.h"
#include "gui/Text1252.h"
#include "gui/app/FontSubstitutions.h"
#include "gui/app/TMyWindow.h"

namespace purrlodge {

TApp::TApp(int& argc, char** argv)
    : application_(argc, argv),
      profile_(settingsFilePath(),
               [this](const std::string& fileName, const std::string& reason) {
                   ui_.showMessage({"The settings file " + fileName + " could not be saved:\n" +
                                        reason + "\n\nThe setting has not been changed.",
                                    "File Error", MessageIcon::Exclamation});
               }),
      drives_(profile_, userHomeFolder())
{
    // QApplication sets the process locale from the environment; numbers typed
    // and printed must follow the C rules ("%.2f" with a point) whatever it is.
    std::setlocale(LC_NUMERIC, "C");
    QApplication::setApplicationName(QStringLiteral("purrlodge"));
    installFontSubstitutions();

    session_ = std::make_unique<Session>(Ports{ui_, clock_, random_, profile_, drives_, printer_},
                                         std::string());
    // QApplication has taken its own options (-platform and the like) out of
    // argc and argv by now; what is left is the program's.
    session_->shell.switches = parseStartupSwitches(argc, argv);
}

TApp::~TApp() = default;

std::string TApp::suggestedDataFolder()
{
    QString documents = QStandardPaths::writableLocation(QStandardPaths::DocumentsLocation);
    if (documents.isEmpty())
        documents = QDir::homePath();
    return toWindows1252(QDir::toNativeSeparators(documents + QStringLiteral("/Purrlodge Data/")));
}

int TApp::run()
{
    const StartupOutcome outcome =
        runStartupSequence(*session_, startupQuestions_, suggestedDataFolder());
    if (!outcome.carryOn)
        return outcome.quitCode;

    window_ = std::make_unique<TMyWindow>(*session_);
    window_->setWindowTitle(fromWindows1252(windowCaption(profile_.read("CurrentDir"))));
    ui_.setMainWindow(window_.get());
    printer_.setMainWindow(window_.get());
    QObject::connect(window_.get(), &TMyWindow::quitRequested, window_.get(),
                     [](int exitCode) { QCoreApplication::exit(exitCode); });
    window_->show();
    return QApplication::exec();
}

} // namespace purrlodge
