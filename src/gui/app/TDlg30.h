#pragma once

#include <string>

#include "gui/FormDialog.h"

class QLineEdit;

namespace purrlodge {

// "Change Data Source" (DIALOG 30): registers another data folder. OK hands
// the folder typed to the rule behind OK, whose verdict decides whether the
// dialog closes; Help opens DIALOG 31 and Browse the folder chooser.
class TDlg30 : public FormDialog {
    Q_OBJECT

public:
    // current: the folder in use, 1252 bytes, to start the box with.
    TDlg30(const std::string& current, const OkRule<std::string>& onOk, QWidget* parent = nullptr);

private:
    void browse();
    void showHelp();

    QLineEdit* folderEdit_; // control 102
};

} // namespace purrlodge
