#pragma once

#include <string>

#include <QDialog>

#include "app/commands/IssueAccount.h"

namespace purrlodge {

// "Complication!" (DIALOG 79): the new account looks like the last one filed.
// "Yes" substitutes it, "No" keeps both, "Go Back" (also Escape or closing
// the window) is kept as "No" with the account number given again.
class TDlg79 : public QDialog {
    Q_OBJECT

public:
    // question: 1252 bytes.
    explicit TDlg79(const std::string& question, QWidget* parent = nullptr);

    // The button pressed; Go Back unless Yes or No was.
    [[nodiscard]] SimilarAccountAnswer answer() const { return answer_; }

private:
    SimilarAccountAnswer answer_ = SimilarAccountAnswer::GoBack;
};

} // namespace purrlodge
