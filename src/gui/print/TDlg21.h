#pragma once

#include "gui/FormDialog.h"
#include "ports/FormVerdict.h"

class QButtonGroup;

namespace purrlodge {

// "Print Dialog Box Option" (DIALOG 21): whether the print dialog comes up
// before a printout never (952), every time (951) or for the first printout
// of each run only (101). The form is the mode, 0, 1 or 2.
class TDlg21 : public FormDialog {
    Q_OBJECT

public:
    TDlg21(int mode, const OkRule<int>& onOk, QWidget* parent = nullptr);

    [[nodiscard]] int mode() const;

private:
    void showHelp();

    QButtonGroup* modes_;
};

} // namespace purrlodge
