#pragma once

#include "gui/HelpPage.h"

namespace purrlodge {

// "Restore from Backup  (Details)" (DIALOG 67): what a restore does to the
// data folder, with a Close button.
class TDlg67 : public HelpPage {
    Q_OBJECT

public:
    explicit TDlg67(QWidget* parent = nullptr);
};

} // namespace purrlodge
