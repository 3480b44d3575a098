#pragma once

#include <optional>

#include "clients/ClientFinder.h"

class QWidget;

namespace purrlodge {

class Session;

// The client finder as the person meets it: "Client Index" (DIALOG 4) asks
// for a name until it is acceptable, the matches are offered in "Matching
// Clients" (DIALOG 2), and the client chosen becomes the current client: its
// record and stay record are read into the session. The keywords that switch
// the diagnostic mode end the finder without a client. commandId is the
// command that opens the finder; it decides the finder's options.
//
// Returns the match chosen (its code names the client's files; the record's
// own code may disagree), or nothing when the finder was cancelled or no row
// was chosen, in which case the session is left as it was.
std::optional<FinderMatch> findClient(QWidget* parent, Session& session, int commandId);

// As findClient, for commands that only need to know whether a client was made
// current.
bool askForClient(QWidget* parent, Session& session, int commandId);

} // namespace purrlodge
