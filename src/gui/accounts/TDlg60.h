#pragma once

#include <string>
#include <vector>

#include <QDialog>

namespace purrlodge {

// The accounts found by Find Numbered Account (DIALOG 60): each account's
// client, dates, total and cats, read only; closed with OK.
class TDlg60 : public QDialog {
    Q_OBJECT

public:
    // lines: 1252 bytes.
    explicit TDlg60(const std::vector<std::string>& lines, QWidget* parent = nullptr);
};

} // namespace purrlodge
