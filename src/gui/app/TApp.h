#pragma once

#include <memory>
#include <string>

#include <QApplication>

#include "app/IniProfile.h"
#include "app/PortableRandom.h"
#include "app/ProfileDrives.h"
#include "gui/app/QtSetupQuestions.h"
#include "gui/ports/QtPrinter.h"
#include "gui/ports/QtUi.h"
#include "gui/ports/SystemClock.h"

namespace purrlodge {

class Session;
class TMyWindow;

// The application: the Qt application object, the ports, the one Session and
// the main window. Start-up runs before the window shows and may end the run.
class TApp {
public:
    // argc and argv are main()'s; Qt takes its own options out of them first.
    TApp(int& argc, char** argv);
    ~TApp();
    TApp(const TApp&) = delete;
    TApp& operator=(const TApp&) = delete;

    // Runs start-up and then the main window; the program's exit code.
    int run();

private:
    // Where a first data set is offered to go: a folder in the user's documents.
    [[nodiscard]] static std::string suggestedDataFolder();

    QApplication application_;
    QtUi ui_;
    SystemClock clock_;
    PortableRandom random_;
    IniProfile profile_;
    ProfileDrives drives_;
    QtPrinter printer_;
    QtSetupQuestions startupQuestions_;
    std::unique_ptr<Session> session_;
    std::unique_ptr<TMyWindow> window_;
};

} // namespace purrlodge
