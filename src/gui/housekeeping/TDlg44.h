#pragma once

#include <string>

#include <QDialog>

namespace purrlodge {

// "Last Backup Date" (DIALOG 44): where and when the last backup went, with
// an OK button.
class TDlg44 : public QDialog {
    Q_OBJECT

public:
    // text: 1252 bytes.
    explicit TDlg44(const std::string& text, QWidget* parent = nullptr);
};

} // namespace purrlodge
