#include <numeric>

#include <QPlainTextEdit>

#include "clients/NoteBook.h"
#include "gui/ShellFixture.h"
#include "gui/clients/TDlg40.h"
#include "gui/clients/TDlg45.h"
#include "gui/clients/TDlg62.h"

using namespace purrlodge;
using namespace purrlodge::testing;
using namespace Qt::StringLiterals;

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

QTEST_MAIN(NotesDialogsTest)
#include "NotesDialogsTest.moc"
