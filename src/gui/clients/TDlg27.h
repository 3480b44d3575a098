#pragma once

#include <QDialog>

namespace purrlodge {

// "Help on New Client registration" (DIALOG 27): what the boxes of Full Client
// Information expect, with a Close button.
class TDlg27 : public QDialog {
    Q_OBJECT

public:
    explicit TDlg27(QWidget* parent = nullptr);
};

} // namespace purrlodge
