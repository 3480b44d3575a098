#include "clients/ArrivalForm.h"
#include "gui/ShellFixture.h"
#include "gui/clients/TDlgArrivalSheet.h"

using namespace purrlodge;
using namespace purrlodge::testing;
using namespace Qt::StringLiterals;

namespace {

// Two of the client's three cats, the first of them staying; no dates yet.
ArrivalForm openingForm()
{
    ArrivalForm form;
    form.cats[0] = {true, "Tibbles"};
    form.cats[1] = {false, "Smudge"};
    form.catShown = {true, true, false, false, false, false};
    form.standardExtraName = "Grooming";
    form.vaccinationStatus = "Vac Certs OK";
    form.sheets = {true, false, true};
    return form;
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

        ModalAnswers answers({
            [&](QWidget* d) {
                QCOMPARE(d->focusWidget()->objectName(), u"arrivalDateEdit"_s);
                QVERIFY(!button(d, u"cat3CheckBox"_s)->isVisible());
                auto* length = child<QLabel>(d, u"stayLengthLabel"_s);
                QTest::keyClicks(edit(d, u"arrivalDateEdit"_s), u"01/03/23"_s);
                QTest::keyClicks(edit(d, u"departureDateEdit"_s), u"04/03/23"_s);
                QVERIFY2(!length->text().isEmpty(), "the length follows the dates typed");
                button(d, u"admissionRegisterButton"_s)->click();
                button(d, u"cat2CheckBox"_s)->click();
                button(d, u"standardExtraCheckBox"_s)->click();
                QTest::keyClicks(edit(d, u"medicationEdit"_s), u"Half a pill"_s);
                button(d, u"returnSheetCheckBox"_s)->click();
                pressOk(d);
            },
            press(QDialogButtonBox::Ok), // the rule's message
            pressOk,                     // kept open as typed
        });
        dialog.exec();

        QCOMPARE(answers.seen(), u"Arrival Sheet|Data Omission|Arrival Sheet"_s);
        QCOMPARE(registersAsked, 1);
        QCOMPARE(dialog.verdict(), FormVerdict::Accept);
        QCOMPARE(handed.size(), std::size_t{2});
        const ArrivalForm& form = handed[1];
        QCOMPARE(form.departure, "04/03/23");
        QVERIFY(form.cats[1].ticked && form.standardExtraWanted);
        QCOMPARE(form.medication, "Half a pill");
        QVERIFY(!form.sheets[2]);
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
        QVERIFY2(edit(&dialog, u"vaccinationEdit"_s)->palette().color(QPalette::Text) !=
                     dialog.palette().color(QPalette::Text),
                 "a status that is not in order shows red");
    }
};

QTEST_MAIN(ArrivalDialogsTest)
#include "ArrivalDialogsTest.moc"
