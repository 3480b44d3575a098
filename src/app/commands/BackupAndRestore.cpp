#include "app/commands/BackupAndRestore.h"

#include <filesystem>
#include <string_view>

#include "app/Session.h"
#include "app/StartupSequence.h"
#include "housekeeping/BackupRestore.h"
#include "housekeeping/BackupScan.h"
#include "housekeeping/FolderBackup.h"
#include "store/ClientFiles.h"
#include "store/FolderTools.h"
#include "store/TextHelpers.h"
#include "store/Windows1252.h"

namespace purrlodge {

namespace {

Message backupResult(const CopyResult& result)
{
    return {std::to_string(result.filesCopied) + " files backed up\nTotal " +
                std::to_string(result.bytesCopied) + " Bytes",
            "Backup Result"};
}

// A backup that did not finish is never taken for the last backup.
Message unfinishedBackup(const CopyResult& result, const std::string& why)
{
    return {why + "\n" + std::to_string(result.filesCopied) +
                " files were copied. This backup is not complete, so the date of your last "
                "backup stays as it was.",
            result.outcome == CopyOutcome::Cancelled ? "Backup Cancelled" : "Backup Stopped",
            MessageIcon::Exclamation};
}

// Settings the person has been told about when they could not be written;
// the backup itself stands.
void noteBackupMade(Session& session)
{
    static_cast<void>(
        session.ports.profile.write("LastBkDate", std::to_string(session.ports.clock.now())));
}

// One backup run from the dialog's OK; remembers the outcome for the
// message that follows the dialog.
class BackupRun {
public:
    BackupRun(Session& session, BackupQuestions& questions)
        : session_(session), questions_(questions),
          scan_(scanForBackup(session.folder, session.index))
    {}

    [[nodiscard]] const BackupScan& scan() const { return scan_; }
    [[nodiscard]] const std::optional<CopyResult>& result() const { return result_; }

    FormVerdict onOk(BackupOptions& entries)
    {
        Ports& ports = session_.ports;
        if (const std::optional<Message> refusal = checkBackupOptions(
                entries, scan_.totalBytes, session_.folder.path(), ports.drives)) {
            ports.ui.showMessage(*refusal);
            return FormVerdict::StayOpen;
        }
        return entries.medium == BackupMedium::Floppy ? toFloppies() : toFolder(entries);
    }

private:
    FormVerdict toFloppies()
    {
        result_ = backupToFloppies(session_.folder, scan_.backupList, session_.ports.drives,
                                   questions_, questions_, session_.backupDiscNumber);
        questions_.endProgress();
        if (result_->outcome == CopyOutcome::Done)
            noteBackupMade(session_);
        return FormVerdict::Accept;
    }

    FormVerdict toFolder(const BackupOptions& entries)
    {
        Ports& ports = session_.ports;
        const std::string target =
            backupFolderOf(ports.drives, entries.drive, entries.folder).value_or("");
        // Only a backup's own files are ever cleared without asking.
        const std::vector<std::string> present = filesInFolder(target);
        if (!present.empty() && !holdsIndexFile(present) &&
            !questions_.confirmClearingFolder(target, static_cast<int>(present.size())))
            return FormVerdict::StayOpen;
        makeFolderChain(target);
        if (!std::filesystem::is_directory(nativePath(target))) {
            ports.ui.showMessage({"The backup folder\n   " + target + "\ncould not be made.",
                                  "Folder Error", MessageIcon::Exclamation});
            return FormVerdict::StayOpen;
        }
        static_cast<void>(ports.profile.write("CurrentDrive", toUpper(entries.drive)));
        result_ = backupToFolder(session_.folder.path(), target, ports.ui, questions_);
        questions_.endProgress();
        if (result_->outcome != CopyOutcome::Cancelled) {
            // A copy that failed part way has been told, and still counts as
            // the backup made.
            static_cast<void>(ports.profile.write("DefBkDir", entries.folder));
            noteBackupMade(session_);
        }
        return FormVerdict::Accept;
    }

    Session& session_;
    BackupQuestions& questions_;
    BackupScan scan_;
    std::optional<CopyResult> result_;
};

} // namespace

std::string backupReminderNote(const Session& session)
{
    return std::string("Purrlodge reminds you when it starts if your last backup is more than 30 "
                       "days old. Good-Housekeeping | Remind Me! turns this reminder on or off; "
                       "it is ") +
           (session.shell.backupReminder ? "on" : "off") +
           ".\nThe reminder mode kept with your client list (" +
           std::to_string(session.shell.backupReminderMode) +
           ") is kept as it is and changes nothing in backing up or restoring.";
}

void backupMyData(Session& session, BackupQuestions& questions)
{
    BackupRun run(session, questions);
    Profile& profile = session.ports.profile;
    const Drives& drives = session.ports.drives;
    BackupOptionsDialog dialog{dataFilesText(run.scan()),
                               backupEstimateText(run.scan()),
                               backupReminderNote(session),
                               openingBackupOptions(profile),
                               [&run](BackupOptions& entries) { return run.onOk(entries); },
                               [&drives](char letter) { return drives.rootOf(letter); },
                               [&profile](char letter, const std::string& folder) {
                                   return profile.write(std::string("Drive") + toUpper(letter),
                                                        folder);
                               }};
    if (questions.fillBackupOptions(dialog) != FormVerdict::Accept || !run.result())
        return;
    const CopyResult& result = *run.result();
    switch (result.outcome) {
    case CopyOutcome::Done:
    case CopyOutcome::Failed:
        session.ports.ui.showMessage(backupResult(result));
        break;
    case CopyOutcome::Cancelled:
        session.ports.ui.showMessage(unfinishedBackup(result, "The backup was cancelled."));
        break;
    case CopyOutcome::Abandoned:
        session.ports.ui.showMessage(
            unfinishedBackup(result, "The backup to floppy discs was stopped for want of a disc."));
        break;
    }
}

void restoreDataFromBackup(Session& session, BackupQuestions& questions)
{
    Ports& ports = session.ports;
    const std::string drive = ports.profile.read("CurrentDrive");
    const std::optional<std::string> source = lastBackupFolder(ports.drives, ports.profile);
    if (!source) {
        ports.ui.showMessage(
            {drive.empty() ? std::string("No backup has been made to a folder yet, so there is "
                                         "nothing to restore from.")
                           : "Drive " + drive +
                                 ": of your backup folder is not set up on this computer, so "
                                 "there is nothing to restore from.\nSet it up with Browse in "
                                 "Backup My Data.",
             "No Backup Found", MessageIcon::Exclamation});
        return;
    }
    if (!questions.confirmRestore(backupFolderName(ports.profile), *source, session.folder.path()))
        return;
    const RestoreResult result =
        restoreFromBackup(*source, session.folder.path(), ports.ui, questions);
    questions.endProgress();
    if (result.outcome != RestoreOutcome::Restored)
        return;
    reloadDataSet(session);
    ports.ui.showMessage({std::to_string(result.filesCopied) +
                              " files sucessfully copied from backup to you current Data "
                              "Folder\nOperation Completed",
                          "Result"});
}

void wheresMyStuff(Session& session, BackupQuestions& questions)
{
    questions.showWhereabouts(stuffWhereabouts(session.folder.path(), session.ports.profile,
                                               session.ports.drives, session.shell.programFolder));
}

void showLastBackup(Session& session, BackupQuestions& questions)
{
    questions.showLastBackup(lastBackupText(session.ports.profile, session.ports.clock));
}

void backupAdvice(Session& session, BackupQuestions& questions)
{
    questions.showBackupAdvice(backupReminderNote(session));
}

} // namespace purrlodge
