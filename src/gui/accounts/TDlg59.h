#pragma once

#include <string>

#include "gui/FormDialog.h"
#include "ports/FormVerdict.h"

class QLineEdit;

namespace purrlodge {

// "Find Numbered Account" (DIALOG 59): the receipt number to look for. OK
// hands the number as typed to the rule, whose verdict decides whether the
// dialog closes or stays open as typed.
class TDlg59 : public FormDialog {
    Q_OBJECT

public:
    explicit TDlg59(const OkRule<std::string>& onOk, QWidget* parent = nullptr);

private:
    QLineEdit* numberEdit_;
};

} // namespace purrlodge
