#include <QDateTime>
#include <QLabel>
#include <QLineEdit>
#include <QTest>

#include "gui/ModalAnswers.h"
#include "gui/ports/QtUi.h"
#include "gui/ports/SystemClock.h"

using namespace purrlodge;
using namespace purrlodge::testing;
using namespace Qt::StringLiterals;

class PortsTest : public QObject {
    Q_OBJECT

private slots:
    void systemClockReadsTheLocalCalendar()
    {
        qputenv("TZ", "UTC");
        const SystemClock clock;
        QCOMPARE(clock.toLocal(1'699'747'200), (CivilTime{2023, 11, 12, 0, 0, 0, 0})); // a Sunday
        QCOMPARE(clock.toLocal(1'700'000'000), (CivilTime{2023, 11, 14, 22, 13, 20, 2}));
        qputenv("TZ", "CET-1"); // one hour east of UTC, without the zone database
        QCOMPARE(clock.toLocal(1'700'000'000).hour, 23);
        QVERIFY(qAbs(clock.now() - QDateTime::currentSecsSinceEpoch()) <= 1);
    }

    void messageBoxShowsTitleTextAndIcon()
    {
        QtUi ui;
        QMessageBox::Icon icon = QMessageBox::NoIcon;
        QString text;
        Qt::TextFormat format = Qt::AutoText;
        ModalAnswers answers({[&](QWidget* modal) {
            auto* box = qobject_cast<QMessageBox*>(modal);
            icon = box->icon();
            text = box->text();
            format = box->textFormat();
            clickLater(box->button(QMessageBox::Ok));
        }});
        ui.showMessage({"Rate <b>\xA3"
                        "5</b>",
                        "No Rates Set", MessageIcon::Exclamation});

        QVERIFY(answers.allAnswered());
        QCOMPARE(answers.titles(), QStringList{u"No Rates Set"_s});
        QCOMPARE(icon, QMessageBox::Warning);
        QCOMPARE(text, u"Rate <b>£5</b>"_s);
        QCOMPARE(format, Qt::PlainText); // the program's texts are shown as they are
    }

    void directorySetupOffersTheSuggestionAndHandsBackTheEntry()
    {
        QtUi ui;
        ModalAnswers answers({
            [](QWidget* dialog) {
                auto* folder = dialog->findChild<QLineEdit*>(u"folderEdit"_s);
                QCOMPARE(folder->text(), u"/home/me/Caf\u00e9/"_s);
                QCOMPARE(folder->maxLength(), 80);
                folder->setText(u"/srv/cattery"_s);
                clickLater(standardButton(dialog, QDialogButtonBox::Ok));
            },
            press(QDialogButtonBox::Cancel),
        });
        QCOMPARE(ui.askDirectorySetup("/home/me/Caf\xE9/"),
                 std::optional<std::string>("/srv/cattery"));
        QCOMPARE(ui.askDirectorySetup("/x/"), std::nullopt);
        QVERIFY(answers.allAnswered());
        QCOMPARE(answers.titles(), QStringList({u"Directory Setup"_s, u"Directory Setup"_s}));
    }

    void directoryQuestionsAnswerYesOrNo()
    {
        QtUi ui;
        ModalAnswers answers({
            press(QDialogButtonBox::Help),
            press(QDialogButtonBox::Ok), // the help text
            press(QDialogButtonBox::Yes),
            [](QWidget* dialog) {
                QVERIFY(dialog->findChild<QLabel*>(u"folderLabel"_s)->text() == u"/srv/new/"_s);
                clickLater(standardButton(dialog, QDialogButtonBox::No));
            },
        });
        QVERIFY(ui.askDirectoryCheck());
        QVERIFY(!ui.askNewDirectory("/srv/new/"));
        QVERIFY(answers.allAnswered());
        QCOMPARE(answers.titles(), QStringList({u"Directory Check"_s, u"Directory Check"_s,
                                                u"Directory Check"_s, u"New Directory"_s}));
    }
};

QTEST_MAIN(PortsTest)
#include "PortsTest.moc"
