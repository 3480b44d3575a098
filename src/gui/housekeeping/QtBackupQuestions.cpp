#include "gui/housekeeping/QtBackupQuestions.h"

#include <algorithm>
#include <limits>
#include <limits>

#include <QCoreApplication>
#include <QMessageBox>
#include <QProgressDialog>

#include "gui/FrontWindow.h"
#include "gui/Text1252.h"
#include "gui/housekeeping/TDlg41.h"
#include "gui/housekeeping/TDlg42.h"
#include "gui/housekeeping/TDlg44.h"
#include "gui/housekeeping/TDlg49.h"
#include "gui/housekeeping/TDlg66.h"
#include "gui/housekeeping/TDlg68.h"

namespace purrlodge {

namespace {

// Letting the window system in after every file would make a backup of
// thousands of small files crawl; this often keeps the display alive.
constexpr qint64 eventsEveryMs = 50;
// A copy quicker than this never shows its progress at all.
constexpr int progressShownAfterMs = 500;

} // namespace

QtBackupQuestions::~QtBackupQuestions()
{
    delete progress_;
}

QWidget* QtBackupQuestions::parent() const
{
    return frontWindow(mainWindow_);
}

std::optional<FormVerdict> QtBackupQuestions::fillBackupOptions(const BackupOptionsDialog& dialog)
{
    TDlg42 options(dialog, parent());
    options.exec();
    return options.verdict();
}

bool QtBackupQuestions::confirmClearingFolder(const std::string& folder, int fileCount)
{
    QMessageBox box(
        QMessageBox::Warning, QStringLiteral("Backup Folder Not Empty"),
        QStringLiteral("The folder\n      %1\nholds %2 file(s) that are not a Purrlodge "
                       "backup.\n\nIf you back up to this folder, all of them will be "
                       "deleted first.\n\nDelete them and back up to this folder?")
            .arg(fromWindows1252(folder))
            .arg(fileCount),
        QMessageBox::Yes | QMessageBox::No, parent());
    box.setObjectName(QStringLiteral("clearFolderBox"));
    box.setTextFormat(Qt::PlainText);
    box.setDefaultButton(QMessageBox::No);
    return box.exec() == QMessageBox::Yes;
}

bool QtBackupQuestions::confirmRestore(const std::string& backupName,
                                       const std::string& backupFolder,
                                       const std::string& dataFolder)
{
    TDlg66 dialog(backupName, backupFolder, dataFolder, parent());
    return dialog.exec() == QDialog::Accepted;
}

void QtBackupQuestions::showWhereabouts(const StuffWhereabouts& whereabouts)
{
    TDlg68 dialog(whereabouts, parent());
    dialog.exec();
}

void QtBackupQuestions::showLastBackup(const std::string& text)
{
    TDlg44 dialog(text, parent());
    dialog.exec();
}

void QtBackupQuestions::showBackupAdvice(const std::string& reminderNote)
{
    TDlg41 dialog(reminderNote, parent());
    dialog.exec();
}

bool QtBackupQuestions::askForNewFloppy(const std::string& text)
{
    TDlg49 dialog(text, parent());
    return dialog.exec() == QDialog::Accepted;
}

bool QtBackupQuestions::showProgress(const std::string& text, int done, int total)
{
    const bool opening = progress_.isNull();
    if (opening) {
        progress_ = new QProgressDialog(parent());
        progress_->setObjectName(QStringLiteral("backupProgressDialog"));
        progress_->setWindowTitle(QStringLiteral("Purrlodge - Please Wait"));
        // Application-modal, so the messages and questions of a disc change come
        // up in front of it.
        progress_->setWindowModality(Qt::ApplicationModal);
        progress_->setCancelButtonText(QStringLiteral("&Cancel"));
        // One dialog shows every stage of the work; only endProgress closes it.
        progress_->setAutoReset(false);
        progress_->setAutoClose(false);
        // Shown by showProgress alone, never by a timer of its own: a timer
        // could bring it up over a message asking for the next disc.
        progress_->setMinimumDuration(std::numeric_limits<int>::max());
        // The clock towards showing the dialog starts at the first step.
        progress_->setRange(0, std::max(total, 0));
        progress_->setValue(0);
        cancelled_ = false;
        sinceEvents_.start();
        sinceOpening_.start();
    }
    if (cancelled_ || progress_->wasCanceled()) {
        cancelled_ = true;
        return false;
    }
    // A step of a count may wait for the next; a status (no count) and the
    // last step show at once.
    if (!opening && total > 0 && done < total && sinceEvents_.elapsed() < eventsEveryMs)
        return true;
    progress_->setLabelText(fromWindows1252(text));
    progress_->setRange(0, std::max(total, 0));
    progress_->setValue(std::clamp(done, 0, std::max(total, 0)));
    if (!progress_->isVisible() && sinceOpening_.elapsed() >= progressShownAfterMs)
        progress_->show();
    // Until the dialog shows, nothing stands between the person and the
    // window behind it: their clicks wait until it is up.
    QCoreApplication::processEvents(progress_->isVisible() ? QEventLoop::AllEvents
                                                           : QEventLoop::ExcludeUserInputEvents);
    sinceEvents_.restart();
    cancelled_ = progress_.isNull() || progress_->wasCanceled();
    return !cancelled_;
}

void QtBackupQuestions::endProgress()
{
    delete progress_;
    cancelled_ = false;
}

} // namespace purrlodge
