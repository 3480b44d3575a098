#include <QCheckBox>
#include <QDir>
#include <QFile>
#include <QLabel>
#include <QLineEdit>
#include <QRadioButton>
#include <QTest>

#include "accounts/CatteryFiles.h"
#include "app/CommandIds.h"
#include "app/StartupSequence.h"
#include "gui/DialogInput.h"
#include "gui/ModalAnswers.h"
#include "gui/ShellFixture.h"
#include "gui/accounts/TDlg14.h"
#include "store/ClientFiles.h"

using namespace purrlodge;
using namespace purrlodge::testing;
using namespace Qt::StringLiterals;

namespace {

QByteArray fileBytes(const std::string& folder, std::string_view name)
{
    QFile file(QString::fromStdString(folder + std::string(name)));
    return file.open(QIODevice::ReadOnly) ? file.readAll() : QByteArray();
}

template <class Record> QByteArray bytesOf(const Record& record)
{
    return QByteArray(reinterpret_cast<const char*>(&record), sizeof record);
}

// The cattery's details, so that a start-up on the folder goes straight on.
void giveTheCatteryItsDetails(const DataFolder& folder)
{
    EstablishmentRecord establishment{};
    establishment.name.set("Whisker Lodge");
    establishment.vaccinationYears.set("1");
    establishment.displayFlags.set("2");
    saveEstablishment(folder, establishment);
}

// The program started again on the same folder: the settings name it and
// start-up reads everything from it.
struct Restart {
    FakePorts fake;
    Session session{fake.ports(), ""};
    StartupOutcome outcome;

    explicit Restart(const std::string& folder)
    {
        fake.profile.write("CurrentDir", folder);
        outcome = runStartupSequence(session, folder);
    }
};

} // namespace

class CatterySetupDialogsTest : public QObject {
    Q_OBJECT

private slots:
    void ratesStartFromTheFileAndAreKeptAcrossARestart()
    {
        ShellFixture shell;
        giveTheCatteryItsDetails(shell.session.folder);
        // Saved earlier, behind this session's back: the dialog must read it.
        RatesRecord onDisc{};
        for (int cats = 0; cats < 6; ++cats) {
            onDisc.presentRate[cats].set(10.0f + static_cast<float>(cats));
            onDisc.previousRate[cats].set(9.0f);
        }
        onDisc.currency.set(static_cast<std::uint32_t>(Currency::Euros));
        onDisc.perDay.set(1);
        onDisc.rateChangeTime.set(1'600'000'000);
        onDisc.accountNote.set("Thank you");
        saveRates(shell.session.folder, onDisc);
        shell.window.updateCommandStates();
        QAction* euro = shell.window.actionsFor(command::euroExchangeRate).first();
        QVERIFY(!euro->isEnabled());

        ModalAnswers answers({[](QWidget* dialog) {
            QCOMPARE(edit(dialog, u"presentRate2Edit"_s)->text(), u"11.00"_s);
            QCOMPARE(child<QLabel>(dialog, u"previousRate2Label"_s)->text(), u"9.00"_s);
            QCOMPARE(child<QLabel>(dialog, u"todayLabel"_s)->text(),
                     u"Today: 22:13 - 14 November, 2023"_s);
            QVERIFY(child<QRadioButton>(dialog, u"eurosRadioButton"_s)->isChecked());
            QVERIFY(child<QRadioButton>(dialog, u"updatePreviousNoRadioButton"_s)->isChecked());
            retype(dialog, u"presentRate1Edit"_s, u"12.5"_s);
            retype(dialog, u"presentRate2Edit"_s, u"123456789"_s); // the edit takes 7
            retype(dialog, u"presentRate3Edit"_s, QString());
            retype(dialog, u"presentRate4Edit"_s, u"abc"_s);
            retype(dialog, u"presentRate6Edit"_s, u"22.25"_s);
            child<QRadioButton>(dialog, u"sterlingRadioButton"_s)->setChecked(true);
            child<QRadioButton>(dialog, u"perNightRadioButton"_s)->setChecked(true);
            child<QRadioButton>(dialog, u"updatePreviousYesRadioButton"_s)->setChecked(true);
            pressOk(dialog);
        }});
        shell.trigger(command::setRates);
        QVERIFY(answers.allAnswered());
        QCOMPARE(answers.titles(), QStringList{u"Setup Daily Board Rates"_s});

        RatesRecord expected = onDisc;
        for (int cats = 0; cats < 6; ++cats)
            expected.previousRate[cats] = onDisc.presentRate[cats];
        const float typed[6] = {12.5f, 1234567.0f, 0.0f, 0.0f, 14.0f, 22.25f};
        for (int cats = 0; cats < 6; ++cats)
            expected.presentRate[cats].set(typed[cats]);
        expected.currency.set(static_cast<std::uint32_t>(Currency::Sterling));
        expected.perDay.set(0);
        expected.rateChangeTime.set(static_cast<std::int32_t>(shell.clock.nowSeconds));
        QCOMPARE(fileBytes(shell.folder(), ratesFile), bytesOf(expected));
        // Sterling now: the window offers the euro rate straight after the command.
        QVERIFY(euro->isEnabled());

        Restart restart(shell.folder());
        QVERIFY(restart.outcome.carryOn);
        QCOMPARE(bytesOf(restart.session.rates), bytesOf(expected));
    }

    void euroRateIsOfferedOnlyForSterlingAndKeptAcrossARestart()
    {
        ShellFixture shell;
        giveTheCatteryItsDetails(shell.session.folder);
        QAction* euro = shell.window.actionsFor(command::euroExchangeRate).first();
        for (const Currency other : {Currency::Euros, Currency::Dollars, Currency::Other}) {
            shell.session.rates.currency.set(static_cast<std::uint32_t>(other));
            shell.window.updateCommandStates();
            QVERIFY(!euro->isEnabled());
        }
        shell.session.rates.currency.set(static_cast<std::uint32_t>(Currency::Sterling));
        saveRates(shell.session.folder, shell.session.rates);
        shell.window.updateCommandStates();
        QVERIFY(euro->isEnabled());

        ModalAnswers answers({[](QWidget* dialog) {
            QCOMPARE(edit(dialog, u"pencePerEuroEdit"_s)->text(), u"0.00"_s);
            QCOMPARE(child<QLabel>(dialog, u"pencePerEuroHintLabel"_s)->text(), u"eg:  62.5"_s);
            retype(dialog, u"pencePerEuroEdit"_s, u"62.5"_s);
            child<QCheckBox>(dialog, u"showEurosCheckBox"_s)->setChecked(true);
            pressOk(dialog);
        }});
        euro->trigger();
        QVERIFY(answers.allAnswered());

        ExchangeRateRecord expected{};
        expected.pencePerEuro.set(62.5f);
        expected.showEuros.set(1);
        QCOMPARE(fileBytes(shell.folder(), exchangeRateFile), bytesOf(expected));

        Restart restart(shell.folder());
        QCOMPARE(bytesOf(restart.session.exchangeRate), bytesOf(expected));
        QVERIFY(restart.fake.ui.messages.empty()); // no "Euros not Set!"
    }

    void standardExtraAndAccountNumberAreKeptAcrossARestart()
    {
        ShellFixture shell;
        giveTheCatteryItsDetails(shell.session.folder);
        RatesRecord onDisc{};
        onDisc.presentRate[0].set(8.0f);
        onDisc.previousRate[0].set(8.0f);
        onDisc.perDay.set(1);
        saveRates(shell.session.folder, onDisc);
        shell.session.rates = onDisc;

        ModalAnswers answers({
            [](QWidget* dialog) {
                QCOMPARE(edit(dialog, u"chargeAmountEdit"_s)->text(), u"0.00"_s);
                retype(dialog, u"extraNameEdit"_s, u"Flea treatment and grooming"_s);
                retype(dialog, u"chargeAmountEdit"_s, u"4.5"_s);
                pressOk(dialog);
            },
            [](QWidget* dialog) {
                QCOMPARE(edit(dialog, u"startingNumberEdit"_s)->text(), u"1000"_s);
                retype(dialog, u"startingNumberEdit"_s, u"2500"_s);
                pressOk(dialog);
            },
            [](QWidget* dialog) {
                // The next account takes the number given.
                QCOMPARE(edit(dialog, u"startingNumberEdit"_s)->text(), u"2500"_s);
                clickLater(standardButton(dialog, QDialogButtonBox::Cancel));
            },
        });
        shell.trigger(command::setStandardExtra);
        shell.trigger(command::setAccountNumber);
        shell.trigger(command::setAccountNumber);
        QVERIFY(answers.allAnswered());

        RatesRecord expectedRates = onDisc;
        expectedRates.standardExtraName.set("Flea treatment and groo"); // the edit takes 23
        expectedRates.standardExtraCharge.set(4.5f);
        QCOMPARE(fileBytes(shell.folder(), ratesFile), bytesOf(expectedRates));
        ClientIndex expectedIndex{};
        expectedIndex.lastAccountNumber.set(2499);
        QCOMPARE(fileBytes(shell.folder(), currentIndexFile), bytesOf(expectedIndex));

        Restart restart(shell.folder());
        QCOMPARE(bytesOf(restart.session.rates), bytesOf(expectedRates));
        QCOMPARE(restart.session.index.lastAccountNumber.get(), 2499);
    }

    void cancelWritesNothing_data()
    {
        QTest::addColumn<int>("commandId");
        QTest::newRow("Set Rates") << command::setRates;
        QTest::newRow("Euro Exchange Rate") << command::euroExchangeRate;
        QTest::newRow("Set Standard Extra") << command::setStandardExtra;
        QTest::newRow("Set Account Number") << command::setAccountNumber;
    }

    void cancelWritesNothing()
    {
        QFETCH(int, commandId);
        ShellFixture shell;
        shell.session.rates.currency.set(static_cast<std::uint32_t>(Currency::Sterling));
        shell.window.updateCommandStates();
        ModalAnswers answers({[](QWidget* dialog) {
            QLineEdit* first = dialog->findChildren<QLineEdit*>().first();
            first->clear();
            QTest::keyClicks(first, u"77"_s);
            clickLater(standardButton(dialog, QDialogButtonBox::Cancel));
        }});
        shell.trigger(commandId);
        QVERIFY(answers.allAnswered());
        QCOMPARE(QDir(shell.dataFolder.path()).entryList(QDir::Files), QStringList());
        QCOMPARE(shell.session.index.lastAccountNumber.get(), 0);
    }

    void ratesDialogStaysOpenAsTypedUntilAccepted()
    {
        RatesForm initial;
        initial.presentRate.fill("5.00");
        initial.previousRate.fill("4.00");
        std::vector<RatesForm> handed;
        FormVerdict answer = FormVerdict::StayOpen;
        TDlg14 dialog(initial, [&](const RatesForm& form) {
            handed.push_back(form);
            return answer;
        });
        dialog.show();
        QVERIFY(QTest::qWaitForWindowExposed(&dialog));
        retype(&dialog, u"presentRate3Edit"_s, u"7.5"_s);
        child<QRadioButton>(&dialog, u"otherRadioButton"_s)->setChecked(true);
        QAbstractButton* ok = standardButton(&dialog, QDialogButtonBox::Ok);

        ok->click();
        QVERIFY(dialog.isVisible());
        QVERIFY(!dialog.verdict());
        QCOMPARE(edit(&dialog, u"presentRate3Edit"_s)->text(), u"7.5"_s);

        answer = FormVerdict::Accept;
        ok->click();
        QVERIFY(!dialog.isVisible());
        QCOMPARE(dialog.verdict(), std::optional<FormVerdict>(FormVerdict::Accept));
        QCOMPARE(static_cast<int>(handed.size()), 2);
        QCOMPARE(handed.back().presentRate[2], std::string("7.5"));
        QCOMPARE(handed.back().previousRate[2], std::string("4.00"));
        QCOMPARE(handed.back().currency, std::optional<std::uint32_t>(3));
        QVERIFY(handed.back().perDay);
        QVERIFY(!handed.back().updatePreviousRates);
    }
};

QTEST_MAIN(CatterySetupDialogsTest)
#include "CatterySetupDialogsTest.moc"
