#pragma once

#include <string>

#include <QDialog>

namespace purrlodge {

// "An Auto Memo Exists!" (DIALOG 63): the client's auto memo, shown before an
// arrival sheet or an account is made. "Delete" (accepted) removes the memo,
// "Leave" (rejected) keeps it; Help says which is which.
class TDlg63 : public QDialog {
    Q_OBJECT

public:
    // caption and memo: 1252 bytes.
    TDlg63(const std::string& caption, const std::string& memo, QWidget* parent = nullptr);

private:
    void showHelp();
};

} // namespace purrlodge
