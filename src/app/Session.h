#pragma once

#include <string>

#include "accounts/AccountRecord.h"
#include "accounts/ColourBlock.h"
#include "accounts/EstablishmentRecord.h"
#include "accounts/ExchangeRateRecord.h"
#include "accounts/RatesRecord.h"
#include "app/ShellState.h"
#include "housekeeping/AddressFile.h"
#include "ports/Ports.h"
#include "print/PrintBuffer.h"
#include "print/PrintDialogRule.h"
#include "store/ClientIndex.h"
#include "store/ClientRecord.h"
#include "store/DataFolder.h"
#include "store/Dates.h"
#include "store/RandomDraw.h"
#include "store/StayRecord.h"

namespace purrlodge {

// Everything the program keeps for the whole run: the data folder, the one
// current client, stay and index, the cattery's records, the account being
// prepared and the ports. The main window owns the one Session and passes it
// by reference; a test makes its own on a temporary folder.
class Session {
public:
    Session(Ports thePorts, std::string dataFolder)
        : ports(thePorts), folder(std::move(dataFolder), thePorts.ui),
          draw(thePorts.random, thePorts.clock)
    {}
    Session(const Session&) = delete;
    Session& operator=(const Session&) = delete;

    Ports ports;
    DataFolder folder;

    ClientRecord client{};
    // The current client's code as the index spells it, which names the
    // client's files; empty while no client is current.
    std::string clientCode;
    StayRecord stay{};
    ClientIndex index{};

    EstablishmentRecord establishment{};
    ColourBlock colourBlock{};
    RatesRecord rates{};
    ExchangeRateRecord exchangeRate{};
    AccountRecord account{};

    // The one print buffer, and whether print jobs show the print dialog.
    PrintBuffer printBuffer;
    PrintDialogState printDialog;

    DateEntryState dates{};
    // The address file's label style, as last chosen this run.
    LabelStyle addressStyle = LabelStyle::Plain;
    RandomDraw draw;

    // The calendar year, taken once at start-up.
    int currentYear = 1970;

    // The floppy discs asked for by backups in this run; the next disc is
    // one more, from one backup to the next.
    int backupDiscNumber = 0;

    // The hidden diagnostic mode: switched by keywords typed into the client
    // finder, it makes account preparation report its stages. Never saved.
    bool diagnostics = false;

    // Switches, settings and display state of the application shell.
    ShellState shell;
};

} // namespace purrlodge
