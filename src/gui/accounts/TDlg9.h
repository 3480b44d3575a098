#pragma once

#include <string>

#include <QDialog>

namespace purrlodge {

// "Discount Calculation" (DIALOG 9): what the discount comes to and the board
// after it, closed with Close.
class TDlg9 : public QDialog {
    Q_OBJECT

public:
    // text: 1252 bytes, as the calculation made it.
    explicit TDlg9(const std::string& text, QWidget* parent = nullptr);
};

} // namespace purrlodge
