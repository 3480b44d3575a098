#pragma once

#include <QDialog>

namespace purrlodge {

// "Change Data Source Help" (DIALOG 31): how choosing another data folder works.
class TDlg31 : public QDialog {
    Q_OBJECT

public:
    explicit TDlg31(QWidget* parent = nullptr);
};

} // namespace purrlodge
