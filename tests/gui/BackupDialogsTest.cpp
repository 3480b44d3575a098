#include <QDir>
#include <QFileDialog>

#include "gui/ShellFixture.h"
#include "gui/housekeeping/TDlg42.h"

using namespace purrlodge;
using namespace purrlodge::testing;
using namespace Qt::StringLiterals;

namespace {

QStringList filesIn(const QString& folder)
{
    return QDir(folder).entryList(QDir::Files, QDir::Name);
}

// Runs the action once the condition holds, or after two seconds, checking
// from the event loop so that whatever is under way can finish first.
void afterwards(QObject* context, std::function<bool()> condition, std::function<void()> action,
                int triesLeft = 100)
{
    QTimer::singleShot(20, context, [=] {
        if (condition() || triesLeft == 0)
            action();
        else
            afterwards(context, condition, action, triesLeft - 1);
    });
}

} // namespace

class BackupDialogsTest : public QObject {
    Q_OBJECT

private slots:
    void backupGoesToTheFolderBrowsedForAndRestoreBringsItBack()
    {
        ShellFixture shell;
        shell.addClient("Nguyen", {"Tibbles"});
        QTemporaryDir stickFolder;
        const QString stick = QDir(stickFolder.path()).canonicalPath();
        {
            ModalAnswers backup({
                [](QWidget* d) {
                    QVERIFY(!edit(d, u"driveEdit"_s)->isVisible());
                    button(d, u"otherDriveButton"_s)->click();
                    QVERIFY(!button(d, u"floppyButton"_s)->isVisible());
                    retype(d, u"driveEdit"_s, u"f"_s);
                    QCOMPARE(child<QLabel>(d, u"driveFolderLabel"_s)->text(),
                             u"F: is not set up on this computer"_s);
                    clickLater(button(d, u"browseButton"_s));
                },
                [&](QWidget* d) {
                    auto* files = qobject_cast<QFileDialog*>(d);
                    QVERIFY(files != nullptr);
                    // Typed, the folder is taken as it stands, not as the file list
                    // has got round to showing it.
                    child<QLineEdit>(files, u"fileNameEdit"_s)->setText(stick);
                    QMetaObject::invokeMethod(files, &QDialog::accept, Qt::QueuedConnection);
                },
                [&](QWidget* d) {
                    // The file dialog may still be on its way out, and Browse not yet
                    // back with the folder.
                    QLabel* note = child<QLabel>(d, u"driveFolderLabel"_s);
                    afterwards(
                        d, [note, stick] { return note->text().contains(stick); },
                        [d] { pressOk(d); });
                },
                pressOk, // Backup Result
            });
            shell.trigger(command::backupMyData);
            QCOMPARE(backup.seen(),
                     u"Backup Options|The folder that drive F: stands for|Backup Options|Backup "
                     u"Result"_s);
        }
        const QString backupFolder = stick + u"/MyCatData"_s;
        const QStringList dataFiles = filesIn(shell.dataFolder.path());
        QVERIFY(!dataFiles.isEmpty());
        QCOMPARE(filesIn(backupFolder), dataFiles);

        // What a restore copies is pinned in the core tests; "Result" comes only
        // once the backup is back in place.
        ModalAnswers restore({
            [](QWidget* d) { clickLater(button(d, u"restoreHelpButton"_s)); },
            press(QDialogButtonBox::Close), // the details
            [](QWidget* d) { clickLater(button(d, u"restoreButton"_s)); },
            pressOk, // Result
        });
        shell.trigger(command::restoreDataFromBackup);
        QCOMPARE(restore.seen(),
                 u"Restore Backup|Restore from Backup  (Details)|Restore Backup|Result"_s);
    }

    void optionsDialogShowsTheEntriesAsTheRuleHandsThemBack()
    {
        std::vector<BackupOptions> handed;
        BackupOptionsDialog options{"You have 3 Data Files totalling 900 Bytes.",
                                    "estimate",
                                    "reminder",
                                    BackupOptions{BackupMedium::None, "MyCatData", "C"},
                                    [&](BackupOptions& entries) {
                                        handed.push_back(entries);
                                        if (handed.size() > 1)
                                            return FormVerdict::Accept;
                                        // As the check does with a floppy drive typed as the other
                                        // drive.
                                        entries.medium = BackupMedium::Floppy;
                                        showMessageBox(
                                            Message{"Use the floppy option", "Wrong Button"},
                                            QApplication::activeModalWidget());
                                        return FormVerdict::StayOpen;
                                    },
                                    [](char) { return std::optional<std::string>(); },
                                    [](char, const std::string&) { return true; }};
        TDlg42 dialog(options);
        ModalAnswers answers({
            [](QWidget* d) {
                button(d, u"otherDriveButton"_s)->click();
                retype(d, u"folderEdit"_s, u"Spare"_s);
                retype(d, u"driveEdit"_s, u"a"_s);
                pressOk(d);
            },
            pressOk, // Wrong Button
            [](QWidget* d) {
                // Still open, the floppy choice ticked in sight, the other drive gone.
                QVERIFY(d->isVisible());
                QVERIFY(button(d, u"floppyButton"_s)->isVisible());
                QVERIFY(button(d, u"floppyButton"_s)->isChecked());
                QVERIFY(!button(d, u"otherDriveButton"_s)->isVisible());
                QVERIFY(!edit(d, u"folderEdit"_s)->isVisible());
                QVERIFY(child<QLabel>(d, u"floppyWarningLabel"_s)->isVisible());
                pressOk(d);
            },
        });
        dialog.exec();

        QCOMPARE(answers.seen(), u"Backup Options|Wrong Button|Backup Options"_s);
        QCOMPARE(dialog.verdict(), FormVerdict::Accept);
        QCOMPARE(handed.size(), std::size_t{2});
        QCOMPARE(handed[0], (BackupOptions{BackupMedium::OtherDrive, "Spare", "a"}));
        QCOMPARE(handed[1], (BackupOptions{BackupMedium::Floppy, "Spare", "a"}));
    }
};

QTEST_MAIN(BackupDialogsTest)
#include "BackupDialogsTest.moc"
