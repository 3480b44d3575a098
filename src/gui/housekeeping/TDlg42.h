#pragma once

#include <QDialogButtonBox>

#include "app/commands/BackupAndRestore.h"
#include "gui/FormDialog.h"

class QButtonGroup;
class QLabel;
class QLineEdit;
class QRadioButton;

namespace purrlodge {

// "Backup Options" (DIALOG 42): how much data there is, then the choice of
// the floppy set in drive A: or a folder on another drive. The choice buttons
// give way to the floppy texts, or to the folder and drive edits; beside
// either drive, Browse says which folder of this computer it stands for. OK hands
// the entries to the dialog's rule, which runs the backup; while it answers
// StayOpen the dialog shows the entries as they came back. Help is DIALOG 43.
class TDlg42 : public FormDialog {
    Q_OBJECT

public:
    // The dialog's texts are 1252 bytes; it must outlive this window.
    explicit TDlg42(const BackupOptionsDialog& dialog, QWidget* parent = nullptr);

    void accept() override;
    void reject() override;

private:
    [[nodiscard]] BackupOptions entries() const;
    FormVerdict judge();
    // choiceShown: the chosen medium's button stays in sight, ticked, as when a
    // check has switched the choice.
    void showEntries(const BackupOptions& entries, bool choiceShown);
    void showMedium(BackupMedium medium, bool choiceShown);
    void choose(BackupMedium medium);
    [[nodiscard]] QString driveFolderText(char letter) const;
    void showDriveFolders();
    // The letter typed in the drive edit, or the person is asked for one.
    void browseForTypedDrive();
    void browseForDriveFolder(char letter);
    void showHelp();

    const BackupOptionsDialog& dialog_;
    BackupMedium medium_ = BackupMedium::None;
    bool running_ = false; // the backup is running from OK

    QButtonGroup* choices_;
    QRadioButton* floppyButton_;     // 103
    QRadioButton* otherDriveButton_; // 104
    QWidget* floppyTexts_;
    QWidget* folderControls_;
    QLineEdit* folderEdit_;     // 105
    QLineEdit* driveEdit_;      // 111
    QLabel* driveFolderLabel_;  // what the typed letter stands for
    QLabel* floppyFolderLabel_; // what drive A: stands for
    QDialogButtonBox* buttons_;
};

} // namespace purrlodge
