#pragma once

#include <QDialog>

namespace purrlodge {

struct DateWarning;

// "Apparent Date Error" (DIALOG 16): a typed date looks wrong. It shows the
// warning's message and, below it, which date is meant. As a plain warning it
// has a Close button; where the date may stand as typed it offers Continue
// (accepted) and Cancel (rejected).
class TDlg16 : public QDialog {
    Q_OBJECT

public:
    enum class Choice { Close, ContinueOrCancel };

    TDlg16(const DateWarning& warning, Choice choice, QWidget* parent = nullptr);
};

} // namespace purrlodge
