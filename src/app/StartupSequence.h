#pragma once

#include <string>

namespace purrlodge {

class Session;

// How start-up ended: carry on into the main window, or end the program with
// the quit code.
struct StartupOutcome {
    bool carryOn = true;
    int quitCode = 0;
};

// The main window's set-up, run once before it is shown. Records the program
// folder, then runs the fifteen steps in order over the session and its ports:
// shell state and current year, picture rotation, printing font, data folder
// (Directory Setup when none is set or session.shell.switches asks for it;
// suggestedDataFolder is offered there), clock and indicator settings, the
// client index (created when missing, refused when foreign, then sorted and
// written back), the rates, colour and establishment files (Establishment
// Details when the establishment is missing or asked for), the manager's type
// size, the rates and euro-rate warnings, the backup alert, the picture table
// and the rates-usable flag.
StartupOutcome runStartupSequence(Session& session, const std::string& suggestedDataFolder);

} // namespace purrlodge
