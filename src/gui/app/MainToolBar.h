#pragma once

#include <vector>

#include <QString>

namespace purrlodge {

// One item of the main tool bar: a gap of fixed width, or a button.
struct ToolBarEntry {
    int separatorWidth = 0; // a gap of this many pixels when > 0
    int commandId = 0;      // a button's command
    int bitmap = 0;         // the program's bitmap number for the button
    QString icon;           // the button's picture, a resource path without size suffix
    QString toolTip;
    QString objectName; // of the button's QAction
};

// The main window's tool bar, left to right.
[[nodiscard]] std::vector<ToolBarEntry> mainToolBarLayout();

} // namespace purrlodge
