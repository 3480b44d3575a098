#pragma once

#include <QDialog>

#include "app/commands/Exports.h"

class QLabel;
class QLineEdit;

namespace purrlodge {

// "Inactive Clients" (DIALOG 82): the date before which a client's last visit
// makes him inactive. OK marks the clients and shows what came of it below;
// the dialog stays open until Close.
class TDlg82 : public QDialog {
    Q_OBJECT

public:
    explicit TDlg82(ExportQuestions::InactiveRule onOk, QWidget* parent = nullptr);

    // OK: runs the marking, the dialog stays open.
    void accept() override;

private:
    void showHelp();

    ExportQuestions::InactiveRule onOk_;
    QLineEdit* dateEdit_; // 101
    QLabel* result_;      // 103
};

} // namespace purrlodge
