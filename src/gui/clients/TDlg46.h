#pragma once

#include "gui/HelpPage.h"

namespace purrlodge {

// "Help on Notes" (DIALOG 46): what the note book is and how to keep it, with
// a Close button.
class TDlg46 : public HelpPage {
    Q_OBJECT

public:
    explicit TDlg46(QWidget* parent = nullptr);
};

} // namespace purrlodge
