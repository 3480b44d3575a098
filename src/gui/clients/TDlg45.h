#pragma once

#include <string>
#include <vector>

#include "gui/FormDialog.h"
#include "ports/FormVerdict.h"

class QPlainTextEdit;

namespace purrlodge {

// "Note Book" (DIALOG 45): a client's free notes as one page under a heading.
// The text wraps at the edit's width, and OK hands the rule the lines as they
// are laid out on the page, each wrapped line as a line of its own, so the
// note book comes back as the person saw it. Help is DIALOG 46.
class TDlg45 : public FormDialog {
    Q_OBJECT

public:
    // heading and lines: 1252 bytes.
    TDlg45(const std::string& heading, const std::vector<std::string>& lines,
           const OkRule<std::vector<std::string>>& onOk, QWidget* parent = nullptr);

    // The page's lines as laid out now, each cut to the note book's 500
    // characters.
    [[nodiscard]] std::vector<std::string> lines() const;

private:
    void showHelp();

    QPlainTextEdit* notesEdit_; // 102
};

} // namespace purrlodge
