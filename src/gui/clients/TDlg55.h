#pragma once

#include "gui/HelpPage.h"

namespace purrlodge {

// "Name Change or New Cat ?" (DIALOG 55): explains the two choices of Cat Name
// Change, with a Close button.
class TDlg55 : public HelpPage {
    Q_OBJECT

public:
    explicit TDlg55(QWidget* parent = nullptr);
};

} // namespace purrlodge
