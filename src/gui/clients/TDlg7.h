#pragma once

#include "gui/HelpPage.h"

namespace purrlodge {

// "Client Search Help" (DIALOG 7): how to type a name into the client finder,
// for a person and for a cat, with a Close button.
class TDlg7 : public HelpPage {
    Q_OBJECT

public:
    explicit TDlg7(QWidget* parent = nullptr);
};

} // namespace purrlodge
