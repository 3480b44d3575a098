#pragma once

#include <vector>

#include <QString>

namespace purrlodge {

// One entry of the main menu: a command, a separator or a (sub-)popup.
struct MenuEntry {
    enum class Kind { Command, Separator, Popup };

    Kind kind = Kind::Separator;
    int commandId = 0;              // Command
    QString text;                   // Command and Popup, with its & mnemonic
    QString objectName;             // Command (of its QAction) and Popup (of its QMenu)
    std::vector<MenuEntry> entries; // Popup
};

// The main window's menu (MENU 42): its popups in order, each with its entries.
[[nodiscard]] std::vector<MenuEntry> mainMenuLayout();

} // namespace purrlodge
