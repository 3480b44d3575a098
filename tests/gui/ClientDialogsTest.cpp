#include <fstream>
#include <numeric>

#include <QDir>
#include <QPlainTextEdit>

#include "clients/LeavingCat.h"
#include "clients/NoteBook.h"
#include "clients/OtherCatsFile.h"
#include "gui/ShellFixture.h"
#include "gui/clients/TDlg40.h"
#include "gui/clients/TDlg45.h"
#include "gui/clients/TDlg62.h"
#include "gui/clients/TabbedListBox.h"

using namespace purrlodge;
using namespace purrlodge::testing;
using namespace Qt::StringLiterals;

namespace {

// Thirteen clients, Mewton01 owning Puss1 to Mewton13 owning Puss13: one too
// many for the finder's twelve rows.
struct MewtonShell : ShellFixture {
    std::vector<ClientRecord> clients;

    MewtonShell()
    {
        for (int n = 1; n <= 13; ++n) {
            const std::string cat = "Puss" + std::to_string(n);
            clients.push_back(
                addClient((n < 10 ? "Mewton0" : "Mewton") + std::to_string(n), {cat.c_str()}));
        }
    }
};

} // namespace

class ClientDialogsTest : public QObject {
    Q_OBJECT

private slots:
    void finderAsksAgainShowsItsRowsAndOpensTheChosenClientsLists()
    {
        MewtonShell shell;
        const std::string code = shell.clients[12].code.str();
        QVERIFY(appendOtherCat(shell.session.folder, code,
                               otherCatRecordOf({"Tibbles", "Moggy", "Tabby", 2, 2001},
                                                {LeavingReason::NewHome, "Went to her sister"},
                                                CivilTime{2009, 3, 7}, 2009)));
        std::ofstream(shell.session.folder.fileName(clientFileName(code, extension::noteBook)))
            << "Needs a quiet pen\r\n";

        ModalAnswers answers({
            press(QDialogButtonBox::Help),
            press(QDialogButtonBox::Close), // Client Search Help
            typeName(u"mewton"_s),
            pressOk, // Name Error
            [](QWidget* dialog) {
                QCOMPARE(edit(dialog, u"nameEdit"_s)->text(), u"mewton"_s); // as typed
                typeName(u"Mewton1"_s)(dialog);
            },
            [](QWidget* dialog) {
                QVERIFY(!edit(dialog, u"match5Edit"_s)->isVisibleTo(dialog));
                QTest::mouseClick(edit(dialog, u"match4Edit"_s), Qt::LeftButton);
                pressOk(dialog);
            },
            [](QWidget* dialog) { clickLater(child<QPushButton>(dialog, u"otherCatsButton"_s)); },
            press(QDialogButtonBox::Close), // Other Cats
            [](QWidget* dialog) {
                clickLater(child<QPushButton>(dialog, u"specialNotesButton"_s));
            },
            press(QDialogButtonBox::Close), // the note book
            press(QDialogButtonBox::Close), // the details
        });
        shell.trigger(command::seeClientDetails);

        QCOMPARE(answers.seen(),
                 u"Client Index|Client Search Help|Client Index|Name Error|Client Index|"
                 u"Matching Clients|Client's Full Details|Other Cats|Client's Full Details|"
                 u"Other Cats|Client's Full Details"_s);
    }

    void globalSearchShowsAResultsDetails()
    {
        MewtonShell shell;
        ModalAnswers answers({
            [](QWidget* dialog) {
                QTest::keyClicks(edit(dialog, u"searchTextEdit"_s), u"puss1"_s);
                child<QRadioButton>(dialog, u"caseIndependentRadioButton"_s)->click();
                QTest::mouseClick(child<QPushButton>(dialog, u"untickAllButton"_s), Qt::LeftButton);
                QTest::mouseClick(child<QCheckBox>(dialog, u"catNameCheckBox"_s), Qt::LeftButton);
                clickLater(child<QPushButton>(dialog, u"searchButton"_s));
            },
            [](QWidget* dialog) {
                auto* showDetails = child<QPushButton>(dialog, u"showDetailsButton"_s);
                QVERIFY2(!showDetails->isEnabled(), "no line is selected yet");
                auto* list = child<TabbedListBox>(dialog, u"resultsList"_s);
                list->setCurrentIndex(list->model()->index(1, 0));
                clickLater(showDetails);
            },
            press(QDialogButtonBox::Close), // Client's Full Details
            press(QDialogButtonBox::Ok),    // back in the results
        });
        shell.trigger(command::globalSearch);

        QCOMPARE(answers.seen(),
                 u"Global Search|Matching Entries (Global Search)|Client's Full Details|"
                 u"Matching Entries (Global Search)"_s);
    }

    // The form stays open as typed through a refusal, a warning and a failed save.
    void newClientStaysOpenAsTypedThroughItsQuestionsAndAFailedSave()
    {
        ShellFixture shell;
        shell.session.currentYear = 2023;
        // A folder where the client index goes: the new client cannot be listed.
        QVERIFY(QDir(shell.dataFolder.path()).mkdir(QString::fromLatin1(currentIndexFile)));
        ModalAnswers answers({
            [](QWidget* dialog) {
                // The names a new client needs before the form will save it.
                retype(dialog, u"surnameEdit"_s, u"Ng"_s);
                retype(dialog, u"firstNameEdit"_s, u"Ann"_s);
                retype(dialog, u"knownEdit"_s, u"1"_s);
                retype(dialog, u"cat1NameEdit"_s, u"Methuselah"_s);
                retype(dialog, u"cat1BirthYearEdit"_s, u"1950"_s);
                pressOk(dialog);
            },
            pressOk, // Name Error
            [](QWidget* dialog) {
                QCOMPARE(edit(dialog, u"cat1BirthYearEdit"_s)->text(), u"1950"_s);
                retype(dialog, u"surnameEdit"_s, u"Nguyen"_s);
                pressOk(dialog);
            },
            press(QDialogButtonBox::Cancel), // Apparent Date Error
            pressOk,
            pressOk, // Continue
            pressOk, // File Error
            press(QDialogButtonBox::Cancel),
        });
        shell.trigger(command::newClient);

        QCOMPARE(answers.seen(), u"Full Client Information|Name Error|Full Client Information|"
                                 u"Apparent Date Error|Full Client Information|"
                                 u"Apparent Date Error|File Error|Full Client Information"_s);
    }

    void editedClientHandsBackTheEntriesAndWhyACatLeft()
    {
        ShellFixture shell;
        const ClientRecord client = shell.addClient("Nguyen", {"Tibbles", "Smudge"});
        ModalAnswers answers({
            typeName(u"Nguyen"_s),
            pressOk, // the one match
            [](QWidget* dialog) {
                retype(dialog, u"knownEdit"_s, u"1"_s);
                retype(dialog, u"note2Edit"_s, u"Nervous of dogs"_s);
                QTest::keyClick(child<QCheckBox>(dialog, u"redNote2CheckBox"_s), Qt::Key_Space);
                retype(dialog, u"cat2NameEdit"_s, QString());
                pressOk(dialog);
            },
            [](QWidget* leaving) {
                child<QRadioButton>(leaving, u"newHomeRadioButton"_s)->setChecked(true);
                retype(leaving, u"notesEdit"_s, u"Lives with Ann's sister"_s);
                pressOk(leaving);
            },
            pressOk, // moved to the Other Cats list
        });
        shell.trigger(command::editClientDetails);

        QCOMPARE(answers.seen(), u"Client Index|Matching Clients|Full Client Information|"
                                 u"Change to Cats noted.|Other Cats"_s);
        QCOMPARE(shell.session.client.notes[1].str(), "#R# Nervous of dogs");
        OtherCatsFile others{};
        QVERIFY(shell.session.folder.read(clientFileName(client.code.str(), extension::otherCats),
                                          others));
        QCOMPARE(others.cats[otherCatsKept - 1].reason.str(), "Rehomed");
        QCOMPARE(others.cats[otherCatsKept - 1].notes.str(), "Lives with Ann's sister");
    }

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
                child<QPlainTextEdit>(d, u"notesEdit"_s)->appendPlainText(paragraph);
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
};

QTEST_MAIN(ClientDialogsTest)
#include "ClientDialogsTest.moc"
