#pragma once

#include <optional>
#include <string>

#include "app/DataFolderSetup.h"
#include "app/commands/CatterySetup.h"

namespace purrlodge {

class Session;

// The questions start-up may ask: Directory Setup and the data-folder
// questions on a first run, Establishment Details for a data folder that has
// none.
class StartupQuestions : public DataFolderQuestions, public EstablishmentDetailsQuestion {
public:
    // Directory Setup (DIALOG 1): the folder typed when OK is pressed, or
    // nothing on Cancel. The edit starts with the suggestion.
    virtual std::optional<std::string> askDirectorySetup(const std::string& suggestion) = 0;
};

// How start-up ended: carry on into the main window, or end the program with
// the quit code.
struct StartupOutcome {
    bool carryOn = true;
    int quitCode = 0;
};

// The main window's set-up, run once before it is shown. A settings file that
// cannot be read ends it at once with a message, nothing written. Records the program
// folder, then runs the fifteen steps in order over the session and its ports:
// shell state and current year, picture rotation, printing font, data folder
// (Directory Setup when none is set or session.shell.switches asks for it;
// suggestedDataFolder is offered there), clock and indicator settings, the
// client index (created when missing, refused when foreign, then sorted and
// written back), the rates, colour and establishment files (Establishment
// Details when the establishment is missing or asked for), the manager's type
// size, the rates and euro-rate warnings, the backup alert, the picture table
// and the rates-usable flag.
StartupOutcome runStartupSequence(Session& session, StartupQuestions& questions,
                                  const std::string& suggestedDataFolder);

// Reads the data set afresh after its files were replaced (a restore): no
// client is current any more; the client index is read, repaired, sorted and
// written back as at start-up, and the cattery's files are read again.
void reloadDataSet(Session& session);

} // namespace purrlodge
