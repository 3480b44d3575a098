#pragma once

#include <functional>
#include <string>

#include <QDialog>

class QLineEdit;

namespace purrlodge {

// "Change Data Source" (DIALOG 30): registers another data folder. OK hands
// the folder typed to the accept function, which answers whether the dialog
// may close; Help opens DIALOG 31 and Browse the folder chooser.
class TDlg30 : public QDialog {
    Q_OBJECT

public:
    using AcceptFolder = std::function<bool(const std::string& folder)>;

    // current: the folder in use, 1252 bytes, to start the box with.
    TDlg30(const std::string& current, AcceptFolder acceptFolder, QWidget* parent = nullptr);

    void accept() override;

private:
    void browse();
    void showHelp();

    QLineEdit* folderEdit_; // control 102
    AcceptFolder acceptFolder_;
};

} // namespace purrlodge
