#include <fstream>
#include <numeric>

#include <QListWidget>
#include <QPlainTextEdit>

#include "clients/NoteBook.h"
#include "gui/ShellFixture.h"
#include "gui/clients/TDlg40.h"
#include "gui/clients/TDlg45.h"
#include "gui/clients/TDlg53.h"
#include "gui/clients/TDlg62.h"
#include "gui/clients/TabbedListBox.h"

using namespace purrlodge;
using namespace purrlodge::testing;
using namespace Qt::StringLiterals;

namespace {

QAbstractButton* button(QWidget* dialog, const QString& name)
{
    return child<QAbstractButton>(dialog, name);
}

} // namespace

class NotesDialogsTest : public QObject {
    Q_OBJECT

private slots:
    void noteBookHandsBackEachWrappedLineAndStaysOpenUntilTheRuleAccepts()
    {
        const QString paragraph = u"Tibbles takes one pill with her breakfast and one more at "_s
                                  u"night, crushed into a spoonful of tuna. "_s.repeated(3);
        std::vector<std::vector<std::string>> handed;
        TDlg45 dialog(
            "Notes for Mrs Ann Nguyen", {"Allergic to fleas"},
            [&](const std::vector<std::string>& lines) {
                handed.push_back(lines);
                if (handed.size() > 1)
                    return FormVerdict::Accept;
                showMessageBox(Message{"Not yet", "File Error", MessageIcon::Stop}, &dialog);
                return FormVerdict::StayOpen;
            });
        ModalAnswers answers({
            [&](QWidget* d) {
                QPlainTextEdit* notes = child<QPlainTextEdit>(d, u"notesEdit"_s);
                QCOMPARE(notes->toPlainText(), u"Allergic to fleas"_s);
                notes->appendPlainText(paragraph);
                clickLater(standardButton(d, QDialogButtonBox::Help));
            },
            press(QDialogButtonBox::Close), // Help on Notes
            pressOk,
            pressOk, // the rule's message
            pressOk,
        });
        dialog.exec();

        QCOMPARE(answers.seen(), u"Note Book|Help on Notes|Note Book|File Error|Note Book"_s);
        QCOMPARE(dialog.verdict(), FormVerdict::Accept);
        QCOMPARE(handed.size(), std::size_t{2});
        const std::vector<std::string>& lines = handed[1];
        // The paragraph comes back as the lines it was wrapped into, nothing lost.
        QVERIFY(lines.size() >= 3);
        QCOMPARE(lines[0], "Allergic to fleas");
        QCOMPARE(std::accumulate(lines.begin() + 1, lines.end(), std::string()),
                 paragraph.toStdString());
    }

    void autoMemoTakesNoMoreThanTheFileHoldsAndSavesWindowsLineEnds()
    {
        std::string saved;
        TDlg62 dialog("Pays by cheque\r\nNo visits", [&](const std::string& memo) {
            saved = memo;
            return FormVerdict::Accept;
        });
        ModalAnswers answers({[](QWidget* d) {
            QPlainTextEdit* memo = child<QPlainTextEdit>(d, u"memoEdit"_s);
            QCOMPARE(memo->toPlainText(), u"Pays by cheque\nNo visits"_s);
            memo->insertPlainText(QString(1200, u'x'));
            QTest::keyClicks(memo, u"yz"_s);
            clickLater(standardButton(d, QDialogButtonBox::Save));
        }});
        dialog.exec();

        QCOMPARE(saved.size(), autoMemoLimit);
        QCOMPARE(saved.substr(0, 25), "Pays by cheque\r\nNo visits");
        QCOMPARE(saved.back(), 'x');
    }

    void deletionTakesTheChoiceTickedAndNothingWithoutOne()
    {
        TDlg40 dialog("You can completely remove all files relating to Mrs Ann Nguyen\nor\n"
                      "transfer them to your 'Old Client' file");
        ModalAnswers answers({
            [](QWidget* d) {
                button(d, u"doItButton"_s)->click();
                QVERIFY(d->isVisible());
                clickLater(standardButton(d, QDialogButtonBox::Help));
            },
            press(QDialogButtonBox::Close), // the help
            [](QWidget* d) {
                button(d, u"transferRadioButton"_s)->click();
                clickLater(button(d, u"doItButton"_s));
            },
        });
        QCOMPARE(dialog.exec(), int(QDialog::Accepted));
        QCOMPARE(answers.seen(),
                 u"Client Record Deletion|Help about Client deletion |Client Record Deletion"_s);
        QCOMPARE(dialog.choice(), ClientDeletionChoice::Transfer);
    }

    void pastClientsGiveTheButtonPressedAndTheLine()
    {
        const std::vector<std::string> lines{" Nguyen Ann\tTibbles,\tMill Lane,\tNGUYEN",
                                             " Okafor Ben\t(No cat) \t\tOKAFOR"};
        const auto listAnswer = [&](const std::function<void(QListWidget*, QWidget*)>& act) {
            TDlg53 dialog("Previous Client list as on Tuesday 14/11/2023", lines);
            ModalAnswers answers(
                {[&](QWidget* d) { act(child<QListWidget>(d, u"pastClientsList"_s), d); }});
            dialog.exec();
            return dialog.choice();
        };
        for (const auto& [name, action] :
             {std::pair{u"deleteButton"_s, PastClientAction::Delete},
              std::pair{u"restoreButton"_s, PastClientAction::Restore},
              std::pair{u"detailsButton"_s, PastClientAction::ShowDetails}}) {
            const auto chosen = listAnswer([&](QListWidget* list, QWidget* d) {
                QCOMPARE(static_cast<TabbedListBox*>(list)->tabStops(),
                         (std::vector<int>{60, 150, 250}));
                list->setCurrentRow(1);
                clickLater(button(d, name));
            });
            QVERIFY(chosen && chosen->action == action && chosen->line == 1);
        }
        QVERIFY(!listAnswer([](QListWidget* list, QWidget*) {
                     QTest::keyClick(list, Qt::Key_Escape);
                 }).has_value());
    }

    void menuItemsAndTheSpecialNotesButtonOpenTheirDialogs()
    {
        ShellFixture shell;
        const ClientRecord client = shell.addClient("Nguyen", {"Tibbles"});
        std::ofstream(shell.folder() + client.code.str() + ".NTS") << "Allergic to fleas\n";
        ModalAnswers answers({
            typeName(u"Tibbles"_s),
            pressOk,
            [&](QWidget* d) {
                QVERIFY(child<QLabel>(d, u"headingLabel"_s)->text().contains(u"Nguyen"_s));
                press(QDialogButtonBox::Cancel)(d);
            },
            typeName(u"Nguyen"_s),
            pressOk,
            press(QDialogButtonBox::Cancel), // Auto Memo
            press(QDialogButtonBox::Cancel), // Account Note
            typeName(u"Nguyen"_s),
            pressOk,
            [](QWidget* d) { clickLater(button(d, u"specialNotesButton"_s)); },
            press(QDialogButtonBox::Cancel), // Note Book
            press(QDialogButtonBox::Cancel), // Account Preparation
            typeName(u"Nguyen"_s),
            pressOk,
            [](QWidget* d) {
                button(d, u"removeRadioButton"_s)->click();
                clickLater(button(d, u"doItButton"_s));
            },
            press(QDialogButtonBox::No), // Remove Client
            typeName(u"Nguyen"_s),
            pressOk,
            [](QWidget* d) {
                button(d, u"transferRadioButton"_s)->click();
                clickLater(button(d, u"doItButton"_s));
            },
            [](QWidget* d) {
                child<QListWidget>(d, u"pastClientsList"_s)->setCurrentRow(0);
                clickLater(button(d, u"detailsButton"_s));
            },
            [](QWidget* details) { // the listing alone
                QVERIFY(details->findChild<QPushButton*>(u"printButton"_s) == nullptr);
                press(QDialogButtonBox::Close)(details);
            },
            press(QDialogButtonBox::Close), // Past Clients again
        });
        for (const int command : {command::makeNotes, command::setAutoMemo, command::setAccountNote,
                                  command::issueAccount, command::deleteClient,
                                  command::deleteClient, command::viewPastClients})
            shell.trigger(command);

        QCOMPARE(answers.seen(),
                 u"Client Index|Matching Clients|Note Book|Client Index|Matching Clients|"
                 u"Auto Memo|Account Note|Client Index|Matching Clients|Account Preparation|"
                 u"Note Book|Account Preparation|Client Index|Matching Clients|"
                 u"Client Record Deletion|Remove Client|Client Index|Matching Clients|"
                 u"Client Record Deletion|Previous Client list as on Tuesday 14/11/2023|"
                 u"Detais of Previous Client  Ann Nguyen|"
                 u"Previous Client list as on Tuesday 14/11/2023"_s);
    }
};

QTEST_MAIN(NotesDialogsTest)
#include "NotesDialogsTest.moc"
