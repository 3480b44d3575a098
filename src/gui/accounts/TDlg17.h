#pragma once

#include <string>

#include <QDialog>

namespace purrlodge {

// "Long Stay Query" (DIALOG 17): the stay is longer than three weeks. "Right"
// accepts the dates, "Wrong" (rejected) goes back to put them right.
class TDlg17 : public QDialog {
    Q_OBJECT

public:
    // question: 1252 bytes.
    explicit TDlg17(const std::string& question, QWidget* parent = nullptr);
};

} // namespace purrlodge
