#include <QListWidget>

#include "accounts/AccountPreparation.h"
#include "gui/ShellFixture.h"
#include "gui/accounts/TDlg25.h"
#include "gui/accounts/TDlg79.h"
#include "gui/accounts/TDlg8.h"
#include "gui/ports/QtUi.h"

using namespace purrlodge;
using namespace purrlodge::testing;
using namespace Qt::StringLiterals;

namespace {

// The records an account is worked out from, and the preparation over them.
struct Preparation {
    RatesRecord rates{};
    ExchangeRateRecord exchangeRate{};
    FakeClock clock{1'700'000'000};
    DateEntryState dates{};
    AccountRecord account{};
    AccountPreparation preparation{rates, exchangeRate, clock, 2023, dates, account};

    Preparation()
    {
        rates.perDay.set(1);
        rates.standardExtraName.set("Grooming");
        rates.standardExtraCharge.set(4.5f);
    }
};

// Two of the client's three cats, the first of them boarding.
AccountPreparationForm openingForm(const RatesRecord& rates)
{
    AccountPreparationForm form;
    form.arrival = "01/03/23";
    form.departure = "04/03/23";
    form.cats[0] = {true, "Tibbles"};
    form.cats[1] = {false, "Smudge"};
    form.catShown = {true, true, false, false, false, false};
    form.standardExtra = openingStandardExtra(rates);
    form.hasSpecialNotes = true;
    return form;
}

} // namespace

class AccountDialogsTest : public QObject {
    Q_OBJECT

private slots:
    void accountPreparationWorksThroughItsButtonsAndHandsOverTheEntries()
    {
        Preparation shown;
        std::vector<AccountPreparationForm> handed;
        int notesShown = 0;
        TDlg8 dialog(
            openingForm(shown.rates), shown.preparation,
            [&](const AccountPreparationForm& form) {
                handed.push_back(form);
                if (handed.size() > 1)
                    return FormVerdict::Accept;
                showMessageBox(Message{"Not yet", "Data Omission", MessageIcon::Exclamation},
                               &dialog);
                return FormVerdict::StayOpen;
            },
            [&](QWidget*) { ++notesShown; });

        ModalAnswers answers({
            [&](QWidget* d) {
                QVERIFY(!button(d, u"cat3CheckBox"_s)->isVisible());
                // No hides the extra's amount, Yes shows it again.
                button(d, u"extraNoRadioButton"_s)->click();
                QVERIFY(!edit(d, u"extraAmountEdit"_s)->isVisible());
                button(d, u"extraYesRadioButton"_s)->click();
                QVERIFY(edit(d, u"extraAmountEdit"_s)->isVisible());
                button(d, u"specialNotesButton"_s)->click();
                clickLater(button(d, u"alterDatesButton"_s));
            },
            [](QWidget* dates) {
                retype(dates, u"arrivalDateEdit"_s, u"02/03/23"_s);
                pressOk(dates);
            },
            [](QWidget* d) {
                QCOMPARE(child<QLabel>(d, u"arrivalLabel"_s)->text(), u"02/03/23"_s);
                clickLater(button(d, u"testDiscountButton"_s));
            },
            press(QDialogButtonBox::Close), // Discount Calculation
            [](QWidget* d) {
                button(d, u"cat2CheckBox"_s)->click();
                retype(d, u"extrasAmountEdit"_s, u"7.25"_s);
                pressOk(d);
            },
            pressOk, // the rule's message
            pressOk, // kept open as typed
        });
        dialog.exec();

        QCOMPARE(answers.seen(), u"Account Preparation|New Dates for Account|Account Preparation|"
                                 u"Discount Calculation|Account Preparation|Data Omission|"
                                 u"Account Preparation"_s);
        QCOMPARE(notesShown, 1);
        QCOMPARE(dialog.verdict(), FormVerdict::Accept);
        QCOMPARE(handed.size(), std::size_t{2});
        const AccountPreparationForm& form = handed[1];
        QCOMPARE(form.arrival, "02/03/23");
        QVERIFY(form.cats[0].ticked && form.cats[1].ticked && !form.cats[2].ticked);
        QCOMPARE(form.extrasAmount, "7.25");
        QVERIFY(form.standardExtra.yesTicked);
    }

    void withoutDatesTheCursorStartsOnAlterDates()
    {
        Preparation shown;
        AccountPreparationForm initial = openingForm(shown.rates);
        initial.arrival.clear();
        initial.hasSpecialNotes = false;
        TDlg8 dialog(initial, shown.preparation,
                     [](const AccountPreparationForm&) { return FormVerdict::Accept; }, {});
        QCOMPARE(dialog.focusWidget()->objectName(), u"alterDatesButton"_s);
        QVERIFY(button(&dialog, u"specialNotesButton"_s)->isHidden());
    }

    void accountListAndSimilarityQuestionGiveTheButtonPressed()
    {
        const ClientAccountsList list{
            "Accounts", {"   Rec No. 1001", "   Rec No. 1002"}, {1001, 1002}};
        const auto listAnswer = [&](const std::function<void(QListWidget*, QWidget*)>& act) {
            TDlg25 dialog(list);
            ModalAnswers answers(
                {[&](QWidget* d) { act(child<QListWidget>(d, u"accountsList"_s), d); }});
            dialog.exec();
            return dialog.choice();
        };
        const auto reprint = listAnswer([](QListWidget* lines, QWidget* d) {
            lines->setCurrentRow(1);
            clickLater(button(d, u"reprintButton"_s));
        });
        QVERIFY(reprint && reprint->action == PastAccountAction::Reprint && reprint->line == 1);
        QVERIFY(!listAnswer([](QListWidget* lines, QWidget*) {
                     QTest::keyClick(lines, Qt::Key_Escape);
                 }).has_value());

        for (const auto& [pressed, expected] :
             {std::pair{u"yesButton"_s, SimilarAccountAnswer::Substitute},
              std::pair{u"noButton"_s, SimilarAccountAnswer::KeepBoth}}) {
            TDlg79 dialog("This account looks very similar");
            ModalAnswers answers({[&](QWidget* d) { clickLater(button(d, pressed)); }});
            dialog.exec();
            QCOMPARE(dialog.answer(), expected);
        }
    }
};

QTEST_MAIN(AccountDialogsTest)
#include "AccountDialogsTest.moc"
