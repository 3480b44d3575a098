#pragma once

#include <string>

#include "gui/FormDialog.h"
#include "ports/FormVerdict.h"

class QPlainTextEdit;

namespace purrlodge {

// "Auto Memo" (DIALOG 62): the memo that is brought to the person's notice
// when an arrival sheet or an account is made for the client. Save hands the
// rule the memo with CR LF line ends, as the memo file has always held it;
// the edit takes no more than the file's 1000 characters, counted so.
class TDlg62 : public FormDialog {
    Q_OBJECT

public:
    // memo: 1252 bytes.
    TDlg62(const std::string& memo, const OkRule<std::string>& onOk, QWidget* parent = nullptr);

    // The memo as typed, in 1252 bytes with CR LF line ends.
    [[nodiscard]] std::string memo() const;

private:
    void keepWithinLimit();
    void showHelp();

    QPlainTextEdit* memoEdit_; // 102
};

} // namespace purrlodge
