#pragma once

#include <string>

#include <QDialog>

namespace purrlodge {

// "Directory Error" (DIALOG 58): the backup folder named does not exist.
class TDlg58 : public QDialog {
    Q_OBJECT

public:
    // folder: the backup folder, 1252 bytes.
    explicit TDlg58(const std::string& folder, QWidget* parent = nullptr);
};

} // namespace purrlodge
