#pragma once

#include <memory>

#include <QString>

#include "app/commands/HelpPages.h"
#include "gui/HelpPage.h"

namespace purrlodge {

struct EmergencyFacts;

// The plain help pages of the Help menu, each a HelpPage with a Close button.

// The page of a help topic: Setup Help, Colour Printing and Deleting a
// Client are plain pages; Change the Data Directory has its own dialog.
[[nodiscard]] std::unique_ptr<QDialog> newHelpMenuPage(HelpTopic topic, QWidget* parent);

// Help on: Emergency!, naming this data set's folders and the settings file.
[[nodiscard]] std::unique_ptr<HelpPage>
newEmergencyHelpPage(const EmergencyFacts& facts, const QString& settingsFile, QWidget* parent);

} // namespace purrlodge
