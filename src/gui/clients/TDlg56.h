#pragma once

#include "gui/HelpPage.h"

namespace purrlodge {

// "Help about Client deletion " (DIALOG 56): the two ways of Client Record
// Deletion, with a Close button.
class TDlg56 : public HelpPage {
    Q_OBJECT

public:
    explicit TDlg56(QWidget* parent = nullptr);
};

} // namespace purrlodge
