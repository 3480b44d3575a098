#pragma once

#include "gui/HelpPage.h"

namespace purrlodge {

// "Change Data Source Help" (DIALOG 31): how choosing another data folder works,
// with an OK button.
class TDlg31 : public HelpPage {
    Q_OBJECT

public:
    explicit TDlg31(QWidget* parent = nullptr);
};

} // namespace purrlodge
