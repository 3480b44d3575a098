#pragma once

#include <functional>
#include <string>

#include "gui/FormDialog.h"

class QLineEdit;

namespace purrlodge {

// "Initial Receipt Number" (DIALOG 15): the number the next account takes.
// OK hands the number as typed to the accept function, whose verdict decides
// whether the dialog closes or stays open as typed.
class TDlg15 : public FormDialog {
    Q_OBJECT

public:
    using AcceptNumber = std::function<FormVerdict(const std::string& typed)>;

    // offer: the number to start the edit with, 1252 bytes.
    TDlg15(const std::string& offer, AcceptNumber acceptNumber, QWidget* parent = nullptr);

    // The number as typed, 1252 bytes.
    [[nodiscard]] std::string number() const;

private:
    QLineEdit* numberEdit_; // 102
};

} // namespace purrlodge
