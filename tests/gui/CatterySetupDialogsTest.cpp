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
    void setupDialogsHandOverWhatWasTypedAndANamelessCatteryEndsTheProgram()
    {
        ShellFixture shell;
        // Saved behind this session's back: the dialog must show what the file holds.
        RatesRecord onDisc{};
        onDisc.presentRate[1].set(11.0f);
        onDisc.currency.set(static_cast<std::uint32_t>(Currency::Euros));
        QVERIFY(saveRates(shell.session.folder, onDisc));
        const QString ratesPath =
            QString::fromStdString(shell.folder()) + QLatin1StringView(ratesFile);
        QSignalSpy quit(&shell.window, &TMyWindow::quitRequested);
        ModalAnswers answers({
            [&](QWidget* dialog) {
                QCOMPARE(edit(dialog, u"presentRate2Edit"_s)->text(), u"11.00"_s);
                retype(dialog, u"presentRate2Edit"_s, u"13"_s);
                child<QRadioButton>(dialog, u"sterlingRadioButton"_s)->setChecked(true);
                // A folder where the rates file goes: the write cannot replace it.
                QVERIFY(QFile::remove(ratesPath) && QDir().mkdir(ratesPath));
                pressOk(dialog);
            },
            pressOk, // File Error
            [&](QWidget* dialog) {
                QCOMPARE(edit(dialog, u"presentRate2Edit"_s)->text(), u"13"_s);
                QVERIFY(QDir().rmdir(ratesPath));
                retype(dialog, u"presentRate2Edit"_s, u"12.5"_s);
                pressOk(dialog);
            },
            // Sterling now: the euro rate is offered at once.
            [](QWidget* dialog) {
                retype(dialog, u"pencePerEuroEdit"_s, u"62.5"_s);
                child<QCheckBox>(dialog, u"showEurosCheckBox"_s)->setChecked(true);
                pressOk(dialog);
            },
            [](QWidget* dialog) {
                retype(dialog, u"extraNameEdit"_s, u"Grooming"_s);
                retype(dialog, u"chargeAmountEdit"_s, u"4.5"_s);
                pressOk(dialog);
            },
            [](QWidget* dialog) {
                retype(dialog, u"startingNumberEdit"_s, u"2500"_s);
                pressOk(dialog);
            },
            [&](QWidget* dialog) {
                edit(dialog, u"nameEdit"_s)->setText(u"Café Chat Noir €"_s);
                edit(dialog, u"vaccinationPeriodEdit"_s)->setText(u"1"_s);
                pressOk(dialog);
            },
            [&](QWidget* dialog) {
                QCOMPARE(quit.size(), 0);
                edit(dialog, u"nameEdit"_s)->setText(u" Cats"_s);
                pressOk(dialog);
            },
            pressOk, // Entry Void
        });
        for (const int commandId :
             {command::setRates, command::euroExchangeRate, command::setStandardExtra,
              command::setAccountNumber, command::catteryDetails})
            shell.trigger(commandId);
        QCOMPARE(shell.session.rates.presentRate[1].get(), 12.5f);
        QCOMPARE(shell.session.exchangeRate.pencePerEuro.get(), 62.5f);
        QCOMPARE(shell.session.exchangeRate.showEuros.get(), 1);
        QCOMPARE(shell.session.rates.standardExtraName.str(), "Grooming");
        QCOMPARE(shell.session.rates.standardExtraCharge.get(), 4.5f);
        QCOMPARE(shell.session.index.lastAccountNumber.get(), 2499);
        QCOMPARE(shell.session.establishment.name.str(), "Caf\xE9 Chat Noir \x80");

        shell.trigger(command::catteryDetails);
        QCOMPARE(answers.seen(), u"Setup Daily Board Rates|File Error|Setup Daily Board Rates|"
                                 u"Pound/Euro Exchange Rate|Set Standard Extra|"
                                 u"Initial Receipt Number|Establishment Details|"
                                 u"Establishment Details|Entry Void"_s);
        QCOMPARE(quit.size(), 1);
    }
};

QTEST_MAIN(CatterySetupDialogsTest)
#include "CatterySetupDialogsTest.moc"
