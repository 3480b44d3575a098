#pragma once

#include "gui/HelpPage.h"

namespace purrlodge {

// "Backup Help " (DIALOG 43): what the two ways of Backup Options do and how
// drive letters stand for folders on this computer, with a Close button.
class TDlg43 : public HelpPage {
    Q_OBJECT

public:
    explicit TDlg43(QWidget* parent = nullptr);
};

} // namespace purrlodge
