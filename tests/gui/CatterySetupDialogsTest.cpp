#include <QDir>
#include <QFile>
#include <QSignalSpy>

#include "accounts/CatteryFiles.h"
#include "gui/ShellFixture.h"

using namespace purrlodge;
using namespace purrlodge::testing;
using namespace Qt::StringLiterals;

class CatterySetupDialogsTest : public QObject {
    Q_OBJECT

private slots:
    void ratesDialogShowsTheFileAndStaysOpenAsTypedWhenTheSaveFails()
    {
        ShellFixture shell;
        // Saved behind this session's back: the dialog must show what the file holds.
        RatesRecord onDisc{};
        onDisc.presentRate[1].set(11.0f);
        onDisc.previousRate[1].set(9.0f);
        onDisc.currency.set(static_cast<std::uint32_t>(Currency::Euros));
        QVERIFY(saveRates(shell.session.folder, onDisc));
        const QString ratesPath =
            QString::fromStdString(shell.folder()) + QLatin1StringView(ratesFile);
        QAction* euro = shell.window.actionsFor(command::euroExchangeRate).first();
        ModalAnswers answers({
            [&](QWidget* dialog) {
                QCOMPARE(edit(dialog, u"presentRate2Edit"_s)->text(), u"11.00"_s);
                QCOMPARE(child<QLabel>(dialog, u"previousRate2Label"_s)->text(), u"9.00"_s);
                QVERIFY(child<QRadioButton>(dialog, u"eurosRadioButton"_s)->isChecked());
                retype(dialog, u"presentRate2Edit"_s, u"123456789"_s);
                child<QRadioButton>(dialog, u"sterlingRadioButton"_s)->setChecked(true);
                // A folder where the rates file goes: the write cannot replace it.
                QVERIFY(QFile::remove(ratesPath) && QDir().mkdir(ratesPath));
                pressOk(dialog);
            },
            pressOk, // File Error
            [&](QWidget* dialog) {
                QCOMPARE(edit(dialog, u"presentRate2Edit"_s)->text(), u"1234567"_s); // 7 taken
                QVERIFY(child<QRadioButton>(dialog, u"sterlingRadioButton"_s)->isChecked());
                QVERIFY(QDir().rmdir(ratesPath));
                retype(dialog, u"presentRate2Edit"_s, u"12.5"_s);
                pressOk(dialog);
            },
        });
        shell.trigger(command::setRates);
        QCOMPARE(answers.seen(), u"Setup Daily Board Rates|File Error|Setup Daily Board Rates"_s);
        QCOMPARE(shell.session.rates.presentRate[1].get(), 12.5f);
        QVERIFY2(euro->isEnabled(), "Sterling now: the euro rate is offered at once");
    }

    void setupDialogsHandBackWhatWasTypedAndANamelessCatteryEndsTheProgram()
    {
        ShellFixture shell;
        QSignalSpy quit(&shell.window, &TMyWindow::quitRequested);
        shell.session.rates.currency.set(static_cast<std::uint32_t>(Currency::Sterling));
        shell.window.updateCommandStates();
        ModalAnswers answers({
            [](QWidget* dialog) {
                retype(dialog, u"pencePerEuroEdit"_s, u"62.5"_s);
                child<QCheckBox>(dialog, u"showEurosCheckBox"_s)->setChecked(true);
                pressOk(dialog);
            },
            [](QWidget* dialog) {
                retype(dialog, u"extraNameEdit"_s, u"Flea treatment and grooming"_s);
                retype(dialog, u"chargeAmountEdit"_s, u"4.5"_s);
                pressOk(dialog);
            },
            [](QWidget* dialog) {
                QCOMPARE(edit(dialog, u"startingNumberEdit"_s)->text(), u"1000"_s);
                retype(dialog, u"startingNumberEdit"_s, u"2500"_s);
                pressOk(dialog);
            },
            [&](QWidget* dialog) {
                QCOMPARE(child<QLabel>(dialog, u"dataFolderLabel"_s)->text().toStdString(),
                         shell.folder());
                edit(dialog, u"nameEdit"_s)->setText(u"Café Chat Noir €"_s);
                edit(dialog, u"emailEdit"_s)->setText(QString(100, u'x'));
                edit(dialog, u"vaccinationPeriodEdit"_s)->setText(u"1"_s);
                pressOk(dialog);
            },
            [&](QWidget* dialog) {
                // Opened again on what was stored.
                QCOMPARE(edit(dialog, u"nameEdit"_s)->text(), u"Café Chat Noir €"_s);
                QCOMPARE(quit.size(), 0);
                edit(dialog, u"nameEdit"_s)->setText(u" Cats"_s);
                pressOk(dialog);
            },
            pressOk, // Entry Void
        });
        for (const int commandId : {command::euroExchangeRate, command::setStandardExtra,
                                    command::setAccountNumber, command::catteryDetails})
            shell.trigger(commandId);
        QCOMPARE(shell.session.exchangeRate.pencePerEuro.get(), 62.5f);
        QCOMPARE(shell.session.exchangeRate.showEuros.get(), 1);
        QCOMPARE(shell.session.rates.standardExtraName.str(), "Flea treatment and groo"); // 23
        QCOMPARE(shell.session.rates.standardExtraCharge.get(), 4.5f);
        QCOMPARE(shell.session.index.lastAccountNumber.get(), 2499);
        QCOMPARE(shell.session.establishment.name.str(), "Caf\xE9 Chat Noir \x80");
        QCOMPARE(shell.session.establishment.email.str(), std::string(80, 'x')); // the box takes 80

        shell.trigger(command::catteryDetails);
        QCOMPARE(answers.seen(), u"Pound/Euro Exchange Rate|Set Standard Extra|"
                                 u"Initial Receipt Number|Establishment Details|"
                                 u"Establishment Details|Entry Void"_s);
        QCOMPARE(quit.size(), 1);
        QCOMPARE(quit.first().first().toInt(), 0);
    }
};

QTEST_MAIN(CatterySetupDialogsTest)
#include "CatterySetupDialogsTest.moc"
