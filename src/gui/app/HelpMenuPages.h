#pragma once

#include <memory>

#include <QString>

#include "gui/HelpPage.h"

namespace purrlodge {

struct EmergencyFacts;

// The plain help pages of the Help menu, each a HelpPage with a Close button.

// Setup Help: what each item of the Setup menu is for.
[[nodiscard]] std::unique_ptr<HelpPage> newSetupHelpPage(QWidget* parent);

// Help on: Colour Printing.
[[nodiscard]] std::unique_ptr<HelpPage> newColourPrintingHelpPage(QWidget* parent);

// Help on: Deleting a Client.
[[nodiscard]] std::unique_ptr<HelpPage> newDeletingClientHelpPage(QWidget* parent);

// Help on: Emergency!, naming this data set's folders and the settings file.
[[nodiscard]] std::unique_ptr<HelpPage>
newEmergencyHelpPage(const EmergencyFacts& facts, const QString& settingsFile, QWidget* parent);

} // namespace purrlodge
