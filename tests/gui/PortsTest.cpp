#include "gui/ModalAnswers.h"
#include "gui/Text1252.h"
#include "gui/app/QtSetupQuestions.h"
#include "gui/ports/QtUi.h"

using namespace purrlodge;
using namespace purrlodge::testing;
using namespace Qt::StringLiterals;

class PortsTest : public QObject {
    Q_OBJECT

private slots:
    void text1252KeepsEveryByteAndMarksWhatItCannotHold()
    {
        std::string all;
        for (int byte = 0; byte < 256; ++byte)
            all.push_back(static_cast<char>(byte));
        QCOMPARE(toWindows1252(fromWindows1252(all)), all);
        QCOMPARE(toWindows1252(u"Ω cat 🐈 ok"_s), std::string("? cat ? ok"));
    }

    void messageBoxShowsTitleTextAndIcon()
    {
        QtUi ui;
        ModalAnswers answers({[](QWidget* modal) {
            auto* box = qobject_cast<QMessageBox*>(modal);
            QCOMPARE(box->icon(), QMessageBox::Warning);
            QCOMPARE(box->text(), u"Rate <b>£5</b>"_s);
            QCOMPARE(box->textFormat(), Qt::PlainText); // the program's texts are shown as they are
            pressOk(box);
        }});
        ui.showMessage({"Rate <b>\xA3"
                        "5</b>",
                        "No Rates Set", MessageIcon::Exclamation});
        QCOMPARE(answers.seen(), u"No Rates Set"_s);
    }

    void dataFolderQuestionsShowTheirFolderAndHandBackTheAnswer()
    {
        QtSetupQuestions questions;
        ModalAnswers answers({
            [](QWidget* dialog) {
                QCOMPARE(edit(dialog, u"folderEdit"_s)->text(), u"/home/me/Café/"_s);
                retype(dialog, u"folderEdit"_s, u"/srv/cattery"_s);
                pressOk(dialog);
            },
            press(QDialogButtonBox::Cancel),
            press(QDialogButtonBox::Help),
            pressOk, // the help text
            press(QDialogButtonBox::Yes),
            press(QDialogButtonBox::No),
        });
        QCOMPARE(questions.askDirectorySetup("/home/me/Caf\xE9/"),
                 std::optional<std::string>("/srv/cattery"));
        QCOMPARE(questions.askDirectorySetup("/x/"), std::nullopt);
        QVERIFY(questions.askDirectoryCheck());
        QVERIFY(!questions.askNewDirectory("/srv/new/"));
        QCOMPARE(answers.seen(), u"Directory Setup|Directory Setup|Directory Check|"
                                 u"Directory Check|Directory Check|New Directory"_s);
    }
};

QTEST_MAIN(PortsTest)
#include "PortsTest.moc"
