#pragma once

#include <string>

#include "gui/HelpPage.h"

namespace purrlodge {

// "Advice on Backingup" (DIALOG 41): when and where to back up, followed by
// what reminds the person to, with a Close button.
class TDlg41 : public HelpPage {
    Q_OBJECT

public:
    // reminderNote: 1252 bytes.
    explicit TDlg41(const std::string& reminderNote, QWidget* parent = nullptr);
};

} // namespace purrlodge
