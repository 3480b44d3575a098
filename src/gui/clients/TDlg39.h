#pragma once

#include "gui/HelpPage.h"

namespace purrlodge {

// "Help on Global Search" (DIALOG 39): how the search text, the case mode and
// the field groups work, with a Close button.
class TDlg39 : public HelpPage {
    Q_OBJECT

public:
    explicit TDlg39(QWidget* parent = nullptr);
};

} // namespace purrlodge
