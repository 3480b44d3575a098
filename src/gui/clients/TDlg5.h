#pragma once

#include <QDialog>

namespace purrlodge {

// "Surname Alert!" (DIALOG 5): an edit has changed the client's surname. YES
// accepts the dialog (the change is kept), No rejects it.
class TDlg5 : public QDialog {
    Q_OBJECT

public:
    explicit TDlg5(QWidget* parent = nullptr);
};

} // namespace purrlodge
