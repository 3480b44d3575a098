#pragma once

#include <string>
#include <vector>

#include <QDialog>

namespace purrlodge {

// "Account Summary" (DIALOG 26): a filed account's lines, read only, with its
// amounts lined up at a tab stop; closed with Close.
class TDlg26 : public QDialog {
    Q_OBJECT

public:
    // lines: 1252 bytes, tabs kept.
    explicit TDlg26(const std::vector<std::string>& lines, QWidget* parent = nullptr);
};

} // namespace purrlodge
