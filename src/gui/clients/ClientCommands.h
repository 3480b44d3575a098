#pragma once

class QWidget;

namespace purrlodge {

class Session;
class TMyWindow;

// Puts Tasks | New Client behind its command id.
void registerClientCommands(TMyWindow& window, Session& session);

// Full Client Information (DIALOG 3) on the current client, session.client.
// Returns whether the changes were saved.
bool editClient(QWidget* parent, Session& session);

} // namespace purrlodge
