#pragma once

#include <string>

#include <QDialog>

namespace purrlodge {

// "New Directory" (DIALOG 32): asks whether to create the folder shown; Yes
// accepts the dialog, No rejects it.
class TDlg32 : public QDialog {
    Q_OBJECT

public:
    // folder: 1252 bytes, shown as it was typed.
    explicit TDlg32(const std::string& folder, QWidget* parent = nullptr);
};

} // namespace purrlodge
