#include <QListWidget>
#include <QPlainTextEdit>

#include "accounts/AccountPreparation.h"
#include "clients/AutoMemo.h"
#include "gui/ShellFixture.h"
#include "gui/Text1252.h"
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
        for (int cats = 0; cats < catSlotCount; ++cats)
            rates.presentRate[cats].set(10.0f + 5.0f * static_cast<float>(cats));
        rates.perDay.set(1);
        rates.currency.set(static_cast<std::uint32_t>(Currency::Sterling));
        rates.standardExtraName.set("Grooming");
        rates.standardExtraCharge.set(4.5f);
    }
};

// Two of the client's three cats, the first of them boarding.
AccountPreparationForm openingForm(const RatesRecord& rates)
{
    AccountPreparationForm form;
    form.clientLine = "Mrs Ann Nguyen";
    form.arrival = "01/03/23";
    form.departure = "04/03/23";
    form.cats[0] = {true, "Tibbles"};
    form.cats[1] = {false, "Smudge & Co"};
    form.catShown = {true, true, false, false, false, false};
    form.receiptNumber = "1001";
    form.standardExtra = openingStandardExtra(rates);
    form.hasSpecialNotes = true;
    return form;
}

QString labelText(QWidget* dialog, const QString& name)
{
    return child<QLabel>(dialog, name)->text();
}

QAbstractButton* button(QWidget* dialog, const QString& name)
{
    return child<QAbstractButton>(dialog, name);
}

} // namespace

class AccountDialogsTest : public QObject {
    Q_OBJECT

private slots:
    void accountPreparationWorksThroughItsButtonsAndHandsOverTheEntries()
    {
        Preparation shown;
        Preparation expected; // the same computations, for what the statics must show
        const AccountPreparationForm initial = openingForm(shown.rates);
        AccountPreparationForm laterDates = initial;
        laterDates.arrival = "02/03/23";
        std::vector<AccountPreparationForm> handed;
        int notesShown = 0;
        TDlg8 dialog(
            initial, shown.preparation,
            [&](const AccountPreparationForm& form) {
                handed.push_back(form);
                if (handed.size() > 1)
                    return FormVerdict::Accept;
                showMessageBox(Message{"Not yet", "Data Omission", MessageIcon::Exclamation},
                               &dialog);
                return FormVerdict::StayOpen;
            },
            [&](QWidget*) { ++notesShown; });
        QVERIFY(dialog.sizeHint().width() <= 1024 && dialog.sizeHint().height() <= 700);

        ModalAnswers answers({
            [&](QWidget* d) {
                QCOMPARE(d->focusWidget()->objectName(), u"extrasDescriptionEdit"_s);
                QCOMPARE(labelText(d, u"countLabel"_s),
                         fromWindows1252(expected.preparation.recompute(initial).count));
                QVERIFY(button(d, u"cat2CheckBox"_s)->isVisible());
                QCOMPARE(button(d, u"cat2CheckBox"_s)->text(), u"Smudge && Co"_s);
                QVERIFY(!button(d, u"cat3CheckBox"_s)->isVisible());
                // No hides the extra's name and amount, Yes shows them again.
                QVERIFY(edit(d, u"extraAmountEdit"_s)->isVisible());
                button(d, u"extraNoRadioButton"_s)->click();
                QVERIFY(!edit(d, u"extraAmountEdit"_s)->isVisible());
                QVERIFY(!child<QLabel>(d, u"extraNameLabel"_s)->isVisible());
                button(d, u"extraYesRadioButton"_s)->click();
                QVERIFY(edit(d, u"extraAmountEdit"_s)->isVisible());
                button(d, u"specialNotesButton"_s)->click();
                // No cat ticked: the refusal is shown and nothing else changes.
                button(d, u"cat1CheckBox"_s)->click();
                clickLater(button(d, u"registerChangeButton"_s));
            },
            press(QDialogButtonBox::Ok), // Names no Ticked
            [](QWidget* d) {
                button(d, u"cat1CheckBox"_s)->click();
                clickLater(button(d, u"alterDatesButton"_s));
            },
            [](QWidget* dates) {
                QCOMPARE(edit(dates, u"arrivalDateEdit"_s)->text(), u"01/03/23"_s);
                retype(dates, u"arrivalDateEdit"_s, u"31/02/23"_s);
                pressOk(dates);
            },
            press(QDialogButtonBox::Close), // Apparent Date Error
            [](QWidget* dates) {
                QCOMPARE(edit(dates, u"arrivalDateEdit"_s)->text(), u"31/02/23"_s);
                retype(dates, u"arrivalDateEdit"_s, u"02/03/23"_s);
                pressOk(dates);
            },
            [&](QWidget* d) {
                QCOMPARE(labelText(d, u"arrivalLabel"_s), u"02/03/23"_s);
                QCOMPARE(
                    labelText(d, u"chargeLabel"_s),
                    fromWindows1252(expected.preparation.recompute(laterDates).basicBoardCharge));
                clickLater(button(d, u"testDiscountButton"_s));
            },
            [&](QWidget* calculation) {
                QCOMPARE(labelText(calculation, u"calculationLabel"_s),
                         fromWindows1252(expected.preparation.recompute(laterDates).discountTest));
                press(QDialogButtonBox::Close)(calculation);
            },
            [](QWidget* d) {
                button(d, u"cat2CheckBox"_s)->click();
                retype(d, u"extrasAmountEdit"_s, u"7.25"_s);
                retype(d, u"extraAmountEdit"_s, u"\u00a35.00"_s);
                pressOk(d);
            },
            press(QDialogButtonBox::Ok), // the rule's message
            [](QWidget* d) {
                QCOMPARE(edit(d, u"extrasAmountEdit"_s)->text(), u"7.25"_s);
                pressOk(d);
            },
        });
        dialog.exec();

        QCOMPARE(answers.seen(), u"Account Preparation|Names no Ticked|Account Preparation|"
                                 u"New Dates for Account|Apparent Date Error|"
                                 u"New Dates for Account|Account Preparation|"
                                 u"Discount Calculation|Account Preparation|Data Omission|"
                                 u"Account Preparation"_s);
        QCOMPARE(notesShown, 1);
        QCOMPARE(dialog.verdict(), FormVerdict::Accept);
        QCOMPARE(handed.size(), std::size_t{2});
        const AccountPreparationForm& form = handed[1];
        QCOMPARE(form.arrival, "02/03/23");
        QVERIFY(form.cats[0].ticked && form.cats[1].ticked && !form.cats[2].ticked);
        QCOMPARE(form.cats[1].name, "Smudge & Co");
        QCOMPARE(form.extrasAmount, "7.25");
        QCOMPARE(form.receiptNumber, "1001");
        QVERIFY(form.standardExtra.charged && form.standardExtra.yesTicked);
        QCOMPARE(fromWindows1252(form.standardExtra.amountText), u"\u00a35.00"_s);
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
        const ClientAccountsList list{"Client's Most Recent Accounts (Max 10)",
                                      {"   Rec No. 1001", "   Rec No. 1002", "", "Total"},
                                      {1001, 1002, 0, 0}};
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
        const auto none =
            listAnswer([](QListWidget*, QWidget* d) { clickLater(button(d, u"deleteButton"_s)); });
        QVERIFY(none && none->action == PastAccountAction::Delete && none->line == -1);
        const auto doubleClicked = listAnswer([](QListWidget* lines, QWidget*) {
            lines->setCurrentRow(0);
            emit lines->itemDoubleClicked(lines->item(0));
        });
        QVERIFY(doubleClicked && doubleClicked->action == PastAccountAction::Summary &&
                doubleClicked->line == 0);
        QVERIFY(!listAnswer([](QListWidget* lines, QWidget*) {
                     QTest::keyClick(lines, Qt::Key_Escape);
                 }).has_value());

        // Escape is Go Back, the answer that files nothing over the old account.
        for (const auto& [pressed, expected] :
             {std::pair{u"yesButton"_s, SimilarAccountAnswer::Substitute},
              std::pair{u"noButton"_s, SimilarAccountAnswer::KeepBoth},
              std::pair{QString(), SimilarAccountAnswer::GoBack}}) {
            TDlg79 dialog("This account No.1002 looks very similar");
            ModalAnswers answers({[&](QWidget* d) {
                if (pressed.isEmpty())
                    QTest::keyClick(d, Qt::Key_Escape);
                else
                    clickLater(button(d, pressed));
            }});
            dialog.exec();
            QCOMPARE(dialog.answer(), expected);
        }
    }

    void accountCommandsOpenTheirDialogsFromTheMenu()
    {
        ShellFixture shell;
        const ClientRecord client = shell.addClient("Nguyen", {"Tibbles"});
        AutoMemo memo{};
        memo.text.set("Pays by cheque only");
        QVERIFY(shell.session.folder.write(clientFileName(client.code.str(), extension::autoMemo),
                                           memo));
        ModalAnswers answers({
            typeName(u"Nguyen"_s),
            pressOk, // the one match
            [](QWidget* reminder) {
                QCOMPARE(child<QPlainTextEdit>(reminder, u"memoText"_s)->toPlainText(),
                         u"Pays by cheque only"_s);
                clickLater(button(reminder, u"leaveButton"_s));
            },
            [](QWidget* d) {
                QVERIFY(labelText(d, u"clientLabel"_s).contains(u"Nguyen"_s));
                press(QDialogButtonBox::Cancel)(d);
            },
            pressOk, // nothing typed into Find Numbered Account
            pressOk, // Data Missing
            [](QWidget* d) {
                QTest::keyClicks(edit(d, u"accountNumberEdit"_s), u"12x34"_s);
                QCOMPARE(edit(d, u"accountNumberEdit"_s)->text(), u"1234"_s);
                pressOk(d);
            },
            pressOk, // the accounts found
            typeName(u"Nguyen"_s), pressOk,
            press(QDialogButtonBox::Close), // This Client's Accounts
        });
        shell.trigger(command::issueAccount);
        shell.trigger(command::findNumberedAccount);
        shell.trigger(command::viewPastAccounts);

        QCOMPARE(answers.seen(), u"Client Index|Matching Clients|An Auto Memo Exists!|"
                                 u"Account Preparation|Find Numbered Account|Data Missing|"
                                 u"Find Numbered Account|Numbered Accounts|Client Index|"
                                 u"Matching Clients|This Client's Accounts"_s);
    }
};

QTEST_MAIN(AccountDialogsTest)
#include "AccountDialogsTest.moc"
