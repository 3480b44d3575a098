#include <fstream>

#include <QListWidget>
#include <QSignalSpy>
#include <QToolBar>

#include "clients/AutoMemo.h"
#include "gui/ShellFixture.h"

using namespace purrlodge;
using namespace purrlodge::testing;
using namespace Qt::StringLiterals;

class MainWindowTest : public QObject {
    Q_OBJECT

private slots:
    // Each client command, run from its menu item or tool-bar button, opens its dialogs.
    void clientCommandsOpenTheirDialogs()
    {
        ShellFixture shell;
        const ClientRecord client = shell.addClient("Nguyen", {"Tibbles"});
        std::ofstream(shell.folder() + client.code.str() + ".NTS") << "Allergic to fleas\n";
        const auto period = [](QWidget* d) {
            QVERIFY(!edit(d, u"fromDateEdit"_s)->text().isEmpty());
            press(QDialogButtonBox::Cancel)(d);
        };
        const auto cancel = press(QDialogButtonBox::Cancel);
        const auto deleteBy = [](const QString& choice) {
            return [choice](QWidget* d) {
                button(d, choice)->click();
                clickLater(button(d, u"doItButton"_s));
            };
        };
        ModalAnswers answers({
            typeName(u"Tibbles"_s),
            pressOk,
            cancel, // Note Book
            typeName(u"Nguyen"_s),
            pressOk,
            cancel, // Auto Memo
            cancel, // Account Note
            typeName(u"Nguyen"_s),
            pressOk,
            [](QWidget* d) { clickLater(button(d, u"admissionRegisterButton"_s)); },
            period,
            cancel, // the arrival form
            period,
            typeName(u"Nguyen"_s),
            pressOk,
            [](QWidget* reminder) { clickLater(button(reminder, u"leaveButton"_s)); },
            [](QWidget* d) { clickLater(button(d, u"specialNotesButton"_s)); },
            cancel,  // Note Book
            cancel,  // Account Preparation
            pressOk, // nothing typed into Find Numbered Account
            pressOk, // Data Missing
            [](QWidget* d) {
                QTest::keyClicks(edit(d, u"accountNumberEdit"_s), u"12x34"_s);
                QCOMPARE(edit(d, u"accountNumberEdit"_s)->text(), u"1234"_s);
                pressOk(d);
            },
            pressOk, // the accounts found
            typeName(u"Nguyen"_s),
            pressOk,
            press(QDialogButtonBox::Close), // past accounts
            typeName(u"Nguyen"_s),
            pressOk,
            deleteBy(u"removeRadioButton"_s),
            press(QDialogButtonBox::No), // Remove Client
            typeName(u"Nguyen"_s),
            pressOk,
            deleteBy(u"transferRadioButton"_s),
            [](QWidget* d) {
                child<QListWidget>(d, u"pastClientsList"_s)->setCurrentRow(0);
                clickLater(button(d, u"detailsButton"_s));
            },
            press(QDialogButtonBox::Close), // the past client's details
            press(QDialogButtonBox::Close), // Past Clients again
        });
        for (const int command :
             {command::makeNotes, command::setAutoMemo, command::setAccountNote})
            shell.trigger(command);
        for (QAction* action : shell.window.findChild<QToolBar*>(u"mainToolBar"_s)->actions())
            if (action->data().toInt() == command::makeArrivalSheet)
                action->trigger();
        shell.window.findChild<QMenu*>(u"printJobsMenu"_s)->actions().last()->trigger();
        AutoMemo memo{};
        memo.text.set("Pays by cheque only");
        QVERIFY(shell.session.folder.write(clientFileName(client.code.str(), extension::autoMemo),
                                           memo));
        for (const int command :
             {command::issueAccount, command::findNumberedAccount, command::viewPastAccounts,
              command::deleteClient, command::deleteClient, command::viewPastClients})
            shell.trigger(command);

        QCOMPARE(answers.seen(),
                 u"Client Index|Matching Clients|Note Book|Client Index|Matching Clients|"
                 u"Auto Memo|Account Note|Client Index|Matching Clients|Arrival Sheet|"
                 u"Admission Register|Arrival Sheet|Admission Register|Client Index|"
                 u"Matching Clients|An Auto Memo Exists!|Account Preparation|Note Book|"
                 u"Account Preparation|Find Numbered Account|Data Missing|"
                 u"Find Numbered Account|Numbered Accounts|Client Index|Matching Clients|"
                 u"This Client's Accounts|Client Index|Matching Clients|"
                 u"Client Record Deletion|Remove Client|Client Index|Matching Clients|"
                 u"Client Record Deletion|Previous Client list as on Tuesday 14/11/2023|"
                 u"Detais of Previous Client  Ann Nguyen|"
                 u"Previous Client list as on Tuesday 14/11/2023"_s);
    }

    void itemsAreGreyedEnabledTickedAndRunAsTheSessionSays()
    {
        ShellFixture shell;
        // Nothing is pending to print yet.
        for (const QAction* action : shell.window.actionsFor(command::runPendingPrintout))
            QVERIFY2(!action->isEnabled(), qPrintable(action->objectName()));

        QAction* euro = shell.window.actionsFor(command::euroExchangeRate).first();
        shell.session.rates.currency.set(static_cast<std::uint32_t>(Currency::Euros));
        shell.openAndClose(u"setupMenu"_s);
        QVERIFY(!euro->isEnabled());
        shell.session.rates.currency.set(static_cast<std::uint32_t>(Currency::Sterling));
        shell.openAndClose(u"setupMenu"_s);
        QVERIFY(euro->isEnabled());

        // A toggle's tick flips as it runs.
        for (const int toggle :
             {command::digitalClock, command::showPicNoteIndicator, command::remindMe}) {
            QAction* item = shell.window.actionsFor(toggle).first();
            const bool before = item->isChecked();
            item->trigger();
            QCOMPARE(item->isChecked(), !before);
        }

        shell.window.show();
        QVERIFY(QTest::qWaitForWindowExposed(&shell.window));
        shell.trigger(command::exitProgram);
        QVERIFY(!shell.window.isVisible());
    }

    void changeDataSetRegistersTheFolderAndAsksToQuit()
    {
        ShellFixture shell;
        QSignalSpy quit(&shell.window, &TMyWindow::quitRequested);
        const QString chosen = shell.dataFolder.path() + u"/Cats 2024"_s;
        ModalAnswers answers({
            [&](QWidget* dialog) {
                edit(dialog, u"folderEdit"_s)->setText(chosen);
                pressOk(dialog);
            },
            press(QDialogButtonBox::Ok), // the confirmation
        });
        shell.trigger(command::changeDataSet);

        QCOMPARE(answers.seen(), u"Change Data Source|Set Default Directory"_s);
        QCOMPARE(shell.profile.read("CurrentDir"), chosen.toStdString() + "/");
        QCOMPARE(quit.size(), 1);
        QCOMPARE(quit.first().first().toInt(), 1);
    }
};

QTEST_MAIN(MainWindowTest)
#include "MainWindowTest.moc"
