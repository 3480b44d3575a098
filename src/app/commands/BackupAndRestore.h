#pragma once

#include <functional>
#include <optional>
#include <string>

#include "housekeeping/BackupOptions.h"
#include "housekeeping/BackupProgress.h"
#include "housekeeping/BackupWhereabouts.h"
#include "housekeeping/FloppyBackup.h"
#include "ports/FormVerdict.h"

namespace purrlodge {

class Session;

// Backup Options (DIALOG 42) as it opens, with the rules behind its buttons.
struct BackupOptionsDialog {
    std::string dataFilesText; // "You have %d Data Files totalling %ld Bytes."
    std::string estimateText;  // the floppy discs and minutes a backup would take
    std::string reminderNote;  // what reminds the person to back up
    BackupOptions entries;
    // OK: checks the entries and, when they pass, runs the backup. A check
    // may change the entries (a floppy drive typed as the other drive); the
    // dialog shows them as they come back.
    std::function<FormVerdict(BackupOptions&)> onOk;
    // The folder a drive letter stands for on this computer, if set up.
    std::function<std::optional<std::string>(char)> driveFolder;
    // Browse: the letter stands for the folder from now on; false when that
    // could not be saved (the person has been told).
    std::function<bool(char, const std::string&)> setDriveFolder;
};

// The dialogs of the Good-Housekeeping backup commands. While files are
// copied the progress shows, and a disc change may ask Bad Floppy!.
class BackupQuestions : public BackupProgress, public FloppyDiscQuestions {
public:
    // Backup Options (DIALOG 42, with its help DIALOG 43 and the advice
    // DIALOG 41): the closing verdict, nothing on Cancel.
    virtual std::optional<FormVerdict> fillBackupOptions(const BackupOptionsDialog& dialog) = 0;

    // The chosen backup folder holds files of something else than a backup:
    // whether they may all be deleted.
    virtual bool confirmClearingFolder(const std::string& folder, int fileCount) = 0;

    // Restore Backup (DIALOG 66, its details DIALOG 67): whether to put the
    // backup in `backupFolder` (named as the person knows it, and as this
    // computer does) in place of the data in `dataFolder`.
    virtual bool confirmRestore(const std::string& backupName, const std::string& backupFolder,
                                const std::string& dataFolder) = 0;

    // Where is my Stuff? (DIALOG 68).
    virtual void showWhereabouts(const StuffWhereabouts& whereabouts) = 0;

    // Last Backup Date (DIALOG 44).
    virtual void showLastBackup(const std::string& text) = 0;

    // Advice on Backingup (DIALOG 41), ending with the reminder note.
    virtual void showBackupAdvice(const std::string& reminderNote) = 0;
};

// What reminds the person to back up, as the backup dialogs say it.
[[nodiscard]] std::string backupReminderNote(const Session& session);

// Good-Housekeeping | Backup My Data (11858): the data folder is scanned,
// Backup Options asks where to, the backup runs, and "Backup Result" says
// how many files were copied. A cancelled or stopped backup says so and
// leaves LastBkDate as it was.
void backupMyData(Session& session, BackupQuestions& questions);

// Good-Housekeeping | Restore Data From Backup (11871): once confirmed, the
// backup in CurrentDrive and DefBkDir replaces the data folder's files and
// the data set is read afresh; a failed restore leaves the data as it was.
void restoreDataFromBackup(Session& session, BackupQuestions& questions);

// Good-Housekeeping | Where's My Stuff? (11872).
void wheresMyStuff(Session& session, BackupQuestions& questions);

// Good-Housekeeping | Show Last Backup (11860).
void showLastBackup(Session& session, BackupQuestions& questions);

// Good-Housekeeping | Backup Advice (11862).
void backupAdvice(Session& session, BackupQuestions& questions);

} // namespace purrlodge
