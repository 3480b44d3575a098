#pragma once

#include "gui/HelpPage.h"

namespace purrlodge {

// "Help on New Client registration" (DIALOG 27): what the boxes of Full Client
// Information expect, with a Close button.
class TDlg27 : public HelpPage {
    Q_OBJECT

public:
    explicit TDlg27(QWidget* parent = nullptr);
};

} // namespace purrlodge
