#pragma once

#include <string>

#include <QTemporaryDir>

#include "app/Session.h"
#include "gui/app/TMyWindow.h"
#include "gui/ports/QtUi.h"
#include "support/FakePorts.h"

namespace purrlodge::testing {

// The main window over a session on a temporary data folder, with real
// dialogs (QtUi) and in-memory settings.
struct ShellFixture {
    QTemporaryDir dataFolder;
    QtUi ui;
    FakeClock clock{1'700'000'000}; // 14 November 2023, 22:13 UTC
    FakeRandom random;
    FakeProfile profile;
    FakeDrives drives;
    FakePrinter printer;
    Session session{Ports{ui, clock, random, profile, drives, printer},
                    dataFolder.path().toStdString() + "/"};
    TMyWindow window{session};

    ShellFixture() { ui.setMainWindow(&window); }

    [[nodiscard]] std::string folder() const { return session.folder.path(); }

    // Runs a command as its first menu item or tool-bar button would.
    void trigger(int commandId) { window.actionsFor(commandId).first()->trigger(); }
};

} // namespace purrlodge::testing
