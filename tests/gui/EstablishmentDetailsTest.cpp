#include <QCheckBox>
#include <QLabel>
#include <QLineEdit>
#include <QRadioButton>
#include <QSignalSpy>
#include <QTest>

#include "accounts/CatteryFiles.h"
#include "app/CommandIds.h"
#include "gui/DialogInput.h"
#include "gui/ModalAnswers.h"
#include "gui/ShellFixture.h"

using namespace purrlodge;
using namespace purrlodge::testing;
using namespace Qt::StringLiterals;

class EstablishmentDetailsTest : public QObject {
    Q_OBJECT

private slots:
    void textSizeOutOfRangeKeepsTheDialogOpenUntilCorrected()
    {
        ShellFixture shell;
        QSignalSpy quit(&shell.window, &TMyWindow::quitRequested);
        bool fileWrittenTooEarly = true;
        ModalAnswers answers({
            [](QWidget* dialog) {
                // The data folder being set up is shown.
                QVERIFY(dialog->findChild<QLabel*>(u"dataFolderLabel"_s) != nullptr);
                edit(dialog, u"nameEdit"_s)->setText(u"Whisker Lodge"_s);
                edit(dialog, u"address2Edit"_s)->setText(u"Little Purring"_s);
                edit(dialog, u"vaccinationPeriodEdit"_s)->setText(u"1"_s);
                edit(dialog, u"arrivalSheetLine1Edit"_s)->setText(u"---"_s);
                edit(dialog, u"typeSizeEdit"_s)->setText(u"7"_s);
                dialog->findChild<QCheckBox*>(u"arrivalSheetCheckBox"_s)->setChecked(true);
                dialog->findChild<QRadioButton*>(u"inRedRadioButton"_s)->setChecked(true);
                pressOk(dialog);
            },
            press(QDialogButtonBox::Ok), // Text Size Error
            [&](QWidget* dialog) {
                // Still open, everything as typed, nothing saved yet.
                QCOMPARE(edit(dialog, u"nameEdit"_s)->text(), u"Whisker Lodge"_s);
                QCOMPARE(edit(dialog, u"typeSizeEdit"_s)->text(), u"7"_s);
                fileWrittenTooEarly = shell.session.folder.exists(establishmentFile);
                edit(dialog, u"typeSizeEdit"_s)->setText(u"3"_s);
                pressOk(dialog);
            },
        });
        shell.trigger(command::catteryDetails);

        QVERIFY(answers.allAnswered());
        QCOMPARE(answers.titles(), QStringList({u"Establishment Details"_s, u"Text Size Error"_s,
                                                u"Establishment Details"_s}));
        QVERIFY(!fileWrittenTooEarly);
        EstablishmentRecord saved{};
        QVERIFY(loadEstablishment(shell.session.folder, saved));
        QCOMPARE(saved.name.str(), "Whisker Lodge");
        QCOMPARE(saved.address[1].str(), "Little Purring");
        QCOMPARE(saved.arrivalSheetLine[0].str(), ""); // punctuation only
        QCOMPARE(saved.displayFlags.str(), "C3");
        QCOMPARE(saved.chequesColour.str(), "**RED**");
        QCOMPARE(quit.size(), 0);
    }

    void entriesAreStoredAs1252AndShownBackAsTyped()
    {
        ShellFixture shell;
        const QString longName(100, u'x');
        ModalAnswers answers({
            [&](QWidget* dialog) {
                edit(dialog, u"nameEdit"_s)->setText(u"Café Chat Noir €"_s);
                edit(dialog, u"managerEdit"_s)->setText(u"Ωmega"_s);
                edit(dialog, u"emailEdit"_s)->setText(longName);
                edit(dialog, u"vaccinationPeriodEdit"_s)->setText(u"2"_s);
                pressOk(dialog);
            },
            [](QWidget* dialog) {
                // Opened again: the stored details come back.
                QCOMPARE(edit(dialog, u"nameEdit"_s)->text(), u"Café Chat Noir €"_s);
                QCOMPARE(edit(dialog, u"typeSizeEdit"_s)->text(), u"2"_s);
                QVERIFY(dialog->findChild<QRadioButton*>(u"inBlackRadioButton"_s)->isChecked());
                clickLater(standardButton(dialog, QDialogButtonBox::Cancel));
            },
        });
        shell.trigger(command::catteryDetails);
        shell.trigger(command::catteryDetails);

        QVERIFY(answers.allAnswered());
        EstablishmentRecord saved{};
        QVERIFY(loadEstablishment(shell.session.folder, saved));
        QCOMPARE(saved.name.str(), "Caf\xE9 Chat Noir \x80");
        QCOMPARE(saved.manager.str(), "?mega");
        QCOMPARE(saved.email.str(), std::string(80, 'x')); // the box takes 80 of the 100
    }

    void missingNameEndsTheProgram()
    {
        ShellFixture shell;
        QSignalSpy quit(&shell.window, &TMyWindow::quitRequested);
        ModalAnswers answers({
            [](QWidget* dialog) {
                edit(dialog, u"nameEdit"_s)->setText(u" Cats"_s);
                edit(dialog, u"vaccinationPeriodEdit"_s)->setText(u"1"_s);
                pressOk(dialog);
            },
            press(QDialogButtonBox::Ok), // Entry Void
        });
        shell.trigger(command::catteryDetails);

        QVERIFY(answers.allAnswered());
        QCOMPARE(answers.titles().last(), u"Entry Void"_s);
        QCOMPARE(quit.size(), 1);
        QCOMPARE(quit.first().first().toInt(), 0);
        QVERIFY(!shell.session.folder.exists(establishmentFile));
    }
};

QTEST_MAIN(EstablishmentDetailsTest)
#include "EstablishmentDetailsTest.moc"
