#pragma once

namespace purrlodge {

class Session;
class TMyWindow;

// Puts the cattery's set-up dialogs behind their Setup menu items: Set Rates,
// Euro Exchange Rate (offered only for Sterling, as the window's enabler
// says), Set Standard Extra and Set Account Number. Each dialog opens from
// the session, and its OK hands the entries to the core, which stores them.
void registerCatterySetupCommands(TMyWindow& window, Session& session);

} // namespace purrlodge
