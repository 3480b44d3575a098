#pragma once

#include <string>

#include <QMenu>
#include <QTemporaryDir>

#include "app/CommandIds.h"
#include "app/ProfileDrives.h"
#include "app/Session.h"
#include "gui/ModalAnswers.h"
#include "gui/app/TMyWindow.h"
#include "gui/ports/QtUi.h"
#include "store/ClientFiles.h"
#include "support/FakePorts.h"

namespace purrlodge::testing {

// The main window over a session on a temporary data folder, with real
// dialogs (QtUi) and in-memory settings; drive letters are taken from the
// settings as the program takes them, with no home folder for drive C.
struct ShellFixture {
    QTemporaryDir dataFolder;
    QtUi ui;
    FakeClock clock{1'700'000'000}; // 14 November 2023, 22:13 UTC
    FakeRandom random;
    FakeProfile profile;
    ProfileDrives drives{profile, std::string()};
    FakePrinter printer;
    Session session{Ports{ui, clock, random, profile, drives, printer},
                    dataFolder.path().toStdString() + "/"};
    TMyWindow window{session};

    ShellFixture() { ui.setMainWindow(&window); }

    [[nodiscard]] std::string folder() const { return session.folder.path(); }

    // Runs a command as its first menu item or tool-bar button would.
    void trigger(int commandId) { window.actionsFor(commandId).first()->trigger(); }

    // Shows a menu as a person opens it (which runs its enablers), then closes it.
    void openAndClose(const QString& menuName)
    {
        auto* menu = window.findChild<QMenu*>(menuName);
        menu->popup(QPoint(0, 0));
        menu->hide();
    }

    // A client of Ann's with the given surname and cats, saved as New Client saves one.
    ClientRecord addClient(const std::string& surname, std::initializer_list<const char*> cats)
    {
        ClientRecord client{};
        client.surname.set(surname);
        client.firstName.set("Ann");
        int slot = 0;
        for (const char* cat : cats)
            client.catName[slot++].set(cat);
        if (addNewClient(session.folder, session.index, client, session.draw) !=
            AddClientResult::Added)
            qFatal("%s could not be added", surname.c_str());
        return client;
    }
};

} // namespace purrlodge::testing
