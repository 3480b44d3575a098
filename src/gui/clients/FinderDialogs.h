#pragma once

#include <optional>

#include "app/commands/FindClient.h"

class QWidget;

namespace purrlodge {

// The client finder's two questions answered with its dialogs, for every
// command family that starts by finding a client.

// Client Index (DIALOG 4) showing `shown`: the entries on OK, nothing on Cancel.
[[nodiscard]] std::optional<FinderEntry>
askClientNameInDialog(const FinderOptions& options, const FinderEntry& shown, QWidget* parent);

// Matching Clients (DIALOG 2): the match checked on OK, nothing otherwise.
[[nodiscard]] std::optional<int> chooseMatchInDialog(const FinderResult& result, QWidget* parent);

} // namespace purrlodge
