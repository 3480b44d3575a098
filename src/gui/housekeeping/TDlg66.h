#pragma once

#include <string>

#include <QDialog>

namespace purrlodge {

// "Restore Backup" (DIALOG 66): whether the backup is to replace everything
// in the data folder. "Yes, restore the old data" accepts, "No, cancel this
// action" rejects and is the default; "Help - Read Me First!" opens DIALOG 67.
class TDlg66 : public QDialog {
    Q_OBJECT

public:
    // All three folders: 1252 bytes. backupName is the folder as the person
    // knows it ("C:\MyCatData"), backupFolder the same on this computer.
    TDlg66(const std::string& backupName, const std::string& backupFolder,
           const std::string& dataFolder, QWidget* parent = nullptr);

private:
    void showHelp();
};

} // namespace purrlodge
