#pragma once

#include "gui/HelpPage.h"

namespace purrlodge {

// "How to Change Data Directory" (DIALOG 20), from Help | Help on: | Change
// the Data Directory: how to point Purrlodge at another data folder, with a
// Close button.
class TDlg20 : public HelpPage {
    Q_OBJECT

public:
    explicit TDlg20(QWidget* parent = nullptr);
};

} // namespace purrlodge
