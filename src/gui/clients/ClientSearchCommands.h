#pragma once

#include <string>

class QWidget;

namespace purrlodge {

class Session;
class TMyWindow;
struct ClientRecord;

// Puts the client look-ups behind their Tasks menu items: See Client Details
// (the finder, then the client's full details), Edit Client Details (the
// finder, taking a name with any first character, then the client form) and
// Global Search (the search, its results and the details of a result).
void registerClientSearchCommands(TMyWindow& window, Session& session);

// "Client's Full Details" (DIALOG 12) for a client whose files carry `code`,
// with the other-cats list behind its buttons.
void showClientDetails(QWidget* parent, Session& session, const ClientRecord& client,
                       const std::string& code);

} // namespace purrlodge
