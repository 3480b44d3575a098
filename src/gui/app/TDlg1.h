#pragma once

#include <string>

#include <QDialog>

class QLineEdit;

namespace purrlodge {

// "Directory Setup" (DIALOG 1): the folder for a new or existing data set,
// asked at first run.
class TDlg1 : public QDialog {
    Q_OBJECT

public:
    // The folder box starts with the suggestion (1252 bytes).
    explicit TDlg1(const std::string& suggestion, QWidget* parent = nullptr);

    // The folder as typed, in 1252 bytes.
    [[nodiscard]] std::string folder() const;

private:
    QLineEdit* folderEdit_; // control 103
};

} // namespace purrlodge
