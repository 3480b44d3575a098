#include <QMenu>
#include <QTextEdit>
#include <QToolBar>

#include "clients/ArrivalForm.h"
#include "gui/ShellFixture.h"
#include "gui/Text1252.h"
#include "gui/clients/TDlgArrivalSheet.h"

using namespace purrlodge;
using namespace purrlodge::testing;
using namespace Qt::StringLiterals;

namespace {

// Two of the client's three cats, the first of them staying; no dates yet.
ArrivalForm openingForm()
{
    ArrivalForm form;
    form.clientLine = "Mrs Ann Nguyen";
    form.cats[0] = {true, "Tibbles"};
    form.cats[1] = {false, "Smudge & Co"};
    form.catShown = {true, true, false, false, false, false};
    form.standardExtraName = "Grooming";
    form.vaccinationStatus = "Vac Certs OK";
    form.clientChecks = {"Feeding: dry only", "#R# Bites when picked up"};
    form.sheets = {true, false, true};
    return form;
}

QAbstractButton* button(QWidget* dialog, const QString& name)
{
    return child<QAbstractButton>(dialog, name);
}

QColor textColour(QWidget* dialog, const QString& name)
{
    return edit(dialog, name)->palette().color(QPalette::Text);
}

} // namespace

class ArrivalDialogsTest : public QObject {
    Q_OBJECT

private slots:
    void arrivalFormFollowsTheTypingAndHandsOverTheEntries()
    {
        RatesRecord rates{};
        rates.perDay.set(1);
        std::vector<ArrivalForm> handed;
        int registersAsked = 0;
        TDlgArrivalSheet dialog(
            openingForm(), rates,
            [&](const ArrivalForm& form) {
                handed.push_back(form);
                if (handed.size() > 1)
                    return FormVerdict::Accept;
                showMessageBox(Message{"Not yet", "Data Omission", MessageIcon::Exclamation},
                               &dialog);
                return FormVerdict::StayOpen;
            },
            [&] { ++registersAsked; });
        QVERIFY(dialog.sizeHint().width() <= 1024 && dialog.sizeHint().height() <= 700);

        ModalAnswers answers({
            [&](QWidget* d) {
                QCOMPARE(d->focusWidget()->objectName(), u"arrivalDateEdit"_s);
                QVERIFY(button(d, u"cat2CheckBox"_s)->isVisible());
                QCOMPARE(button(d, u"cat2CheckBox"_s)->text(), u"Smudge && Co"_s);
                QVERIFY(!button(d, u"cat3CheckBox"_s)->isVisible());
                QCOMPARE(button(d, u"standardExtraCheckBox"_s)->text(), u"Grooming wanted"_s);
                QVERIFY(button(d, u"standardExtraCheckBox"_s)->isVisible());
                QCOMPARE(child<QTextEdit>(d, u"clientChecksText"_s)->toPlainText(),
                         u"Feeding: dry only\nBites when picked up"_s);

                // The length follows each date as it is typed.
                auto* length = child<QLabel>(d, u"stayLengthLabel"_s);
                QTest::keyClicks(edit(d, u"arrivalDateEdit"_s), u"01/03/23"_s);
                QCOMPARE(length->text(), fromWindows1252(stayLengthText("01/03/23", "", rates)));
                QTest::keyClicks(edit(d, u"departureDateEdit"_s), u"04/03/23"_s);
                QVERIFY(!length->text().isEmpty());
                QCOMPARE(length->text(),
                         fromWindows1252(stayLengthText("01/03/23", "04/03/23", rates)));
                retype(d, u"departureDateEdit"_s, u"09/03/23"_s);
                QCOMPARE(length->text(),
                         fromWindows1252(stayLengthText("01/03/23", "09/03/23", rates)));

                // Any status but the one that says all is in order is red.
                const QColor plain = textColour(d, u"vaccinationEdit"_s);
                retype(d, u"vaccinationEdit"_s, u"Vac Certs ok"_s);
                QVERIFY(textColour(d, u"vaccinationEdit"_s) != plain);
                retype(d, u"vaccinationEdit"_s, u"Vac Certs OK"_s);
                QCOMPARE(textColour(d, u"vaccinationEdit"_s), plain);

                button(d, u"admissionRegisterButton"_s)->click();
                QTest::keyClicks(edit(d, u"arrivalRemarkEdit"_s), u"10am"_s);
                button(d, u"cat2CheckBox"_s)->click();
                button(d, u"standardExtraCheckBox"_s)->click();
                QTest::keyClicks(edit(d, u"medicationEdit"_s), u"Half a pill at tea"_s);
                QTest::keyClicks(edit(d, u"itemsBroughtEdit"_s), u"Blue blanket"_s);
                button(d, u"ownersCopyCheckBox"_s)->click();
                button(d, u"returnSheetCheckBox"_s)->click();
                pressOk(d);
            },
            press(QDialogButtonBox::Ok), // the rule's message
            [](QWidget* d) {
                QCOMPARE(edit(d, u"medicationEdit"_s)->text(), u"Half a pill at tea"_s);
                pressOk(d);
            },
        });
        dialog.exec();

        QCOMPARE(answers.seen(), u"Arrival Sheet|Data Omission|Arrival Sheet"_s);
        QCOMPARE(registersAsked, 1);
        QCOMPARE(dialog.verdict(), FormVerdict::Accept);
        QCOMPARE(handed.size(), std::size_t{2});
        const ArrivalForm& form = handed[1];
        QCOMPARE(form.arrival, "01/03/23");
        QCOMPARE(form.departure, "09/03/23");
        QCOMPARE(form.arrivalRemark, "10am");
        QVERIFY(form.cats[0].ticked && form.cats[1].ticked && !form.cats[2].ticked);
        QCOMPARE(form.cats[1].name, "Smudge & Co");
        QVERIFY(form.standardExtraWanted);
        QCOMPARE(form.medication, "Half a pill at tea");
        QCOMPARE(form.itemsBrought, "Blue blanket");
        QCOMPARE(form.vaccinationStatus, "Vac Certs OK");
        QCOMPARE(form.clientChecks, openingForm().clientChecks);
        QVERIFY(form.sheets[0] && form.sheets[1] && !form.sheets[2]);
    }

    void aBookedStayStartsInMedicationAndANamelessExtraIsHidden()
    {
        ArrivalForm initial = openingForm();
        initial.arrival = "01/03/23";
        initial.departure = "04/03/23";
        initial.standardExtraName.clear();
        initial.vaccinationStatus = "At least one Vac Cert is more than 1 years old!";
        TDlgArrivalSheet dialog(initial, RatesRecord{},
                                [](const ArrivalForm&) { return FormVerdict::Accept; }, {});
        QCOMPARE(dialog.focusWidget()->objectName(), u"medicationEdit"_s);
        QVERIFY(button(&dialog, u"standardExtraCheckBox"_s)->isHidden());
        QVERIFY(!button(&dialog, u"admissionRegisterButton"_s)->isEnabled());
        QVERIFY(textColour(&dialog, u"vaccinationEdit"_s) !=
                dialog.palette().color(QPalette::Text));
    }

    void menuItemAndToolBarButtonOpenTheirDialogs()
    {
        ShellFixture shell;
        shell.addClient("Nguyen", {"Tibbles"});
        auto* printJobs = shell.window.findChild<QMenu*>(u"printJobsMenu"_s);
        QCOMPARE(printJobs->actions().last()->text(), u"Admission Register"_s);
        QVERIFY(printJobs->actions().last()->isEnabled());

        const auto period = [](const QString& to) {
            return [to](QWidget* d) {
                QVERIFY(!edit(d, u"fromDateEdit"_s)->text().isEmpty());
                retype(d, u"toDateEdit"_s, to);
                press(QDialogButtonBox::Cancel)(d);
            };
        };
        ModalAnswers answers({
            typeName(u"Nguyen"_s),
            pressOk, // the one match
            [](QWidget* d) {
                QVERIFY(child<QLabel>(d, u"clientLabel"_s)->text().contains(u"Nguyen"_s));
                clickLater(button(d, u"admissionRegisterButton"_s));
            },
            period(u"31/12/23"_s),
            press(QDialogButtonBox::Cancel), // the arrival form
            period(u"30/11/23"_s),
        });
        for (QAction* action : shell.window.findChild<QToolBar*>(u"mainToolBar"_s)->actions())
            if (action->data().toInt() == command::makeArrivalSheet)
                action->trigger();
        printJobs->actions().last()->trigger();

        QCOMPARE(answers.seen(), u"Client Index|Matching Clients|Arrival Sheet|Admission Register|"
                                 u"Arrival Sheet|Admission Register"_s);
    }
};

QTEST_MAIN(ArrivalDialogsTest)
#include "ArrivalDialogsTest.moc"
