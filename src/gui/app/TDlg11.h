#pragma once

#include <QDialog>

namespace purrlodge {

// "Directory Check" (DIALOG 11): the folder chosen already holds a data set;
// Yes uses it (the dialog is accepted), No does not (rejected). Help explains.
class TDlg11 : public QDialog {
    Q_OBJECT

public:
    explicit TDlg11(QWidget* parent = nullptr);

private:
    void showHelp();
};

} // namespace purrlodge
