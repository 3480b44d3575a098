#pragma once

#include <string>

#include "gui/FormDialog.h"
#include "ports/FormVerdict.h"

class QLineEdit;

namespace purrlodge {

// "Account Note" (DIALOG 80): the one line printed at the bottom of every
// account sheet, at most 120 characters. OK hands the note as typed to the
// rule, whose verdict decides whether the dialog closes.
class TDlg80 : public FormDialog {
    Q_OBJECT

public:
    // note: 1252 bytes.
    TDlg80(const std::string& note, const OkRule<std::string>& onOk, QWidget* parent = nullptr);

private:
    QLineEdit* noteEdit_; // 102
};

} // namespace purrlodge
