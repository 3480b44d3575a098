#pragma once

#include <QElapsedTimer>
#include <QPointer>
#include <QWidget>

#include "app/commands/BackupAndRestore.h"

class QProgressDialog;

namespace purrlodge {

// The Good-Housekeeping backup commands' questions answered with their
// dialogs, and their progress shown in a progress dialog with a Cancel
// button. Each dialog is modal over the window in front.
class QtBackupQuestions : public BackupQuestions {
public:
    // mainWindow: the owner of the dialogs when no other dialog is open.
    explicit QtBackupQuestions(QWidget* mainWindow) : mainWindow_(mainWindow) {}
    ~QtBackupQuestions() override;

    QtBackupQuestions(const QtBackupQuestions&) = delete;
    QtBackupQuestions& operator=(const QtBackupQuestions&) = delete;

    std::optional<FormVerdict> fillBackupOptions(const BackupOptionsDialog& dialog) override;
    bool confirmClearingFolder(const std::string& folder, int fileCount) override;
    bool confirmRestore(const std::string& backupName, const std::string& backupFolder,
                        const std::string& dataFolder) override;
    void showWhereabouts(const StuffWhereabouts& whereabouts) override;
    void showLastBackup(const std::string& text) override;
    void showBackupAdvice(const std::string& reminderNote) override;

    bool askForNewFloppy(const std::string& text) override;

    bool showProgress(const std::string& text, int done, int total) override;
    void endProgress() override;

private:
    [[nodiscard]] QWidget* parent() const;

    QPointer<QWidget> mainWindow_;
    QPointer<QProgressDialog> progress_;
    QElapsedTimer sinceEvents_;  // since the progress last let the window system in
    QElapsedTimer sinceOpening_; // since the progress began: it shows after a moment
    bool cancelled_ = false;
};

} // namespace purrlodge
