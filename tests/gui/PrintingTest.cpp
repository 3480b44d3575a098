#include "app/commands/Printing.h"

#include <QDir>
#include <QTemporaryDir>

#include "accounts/CatteryFiles.h"
#include "gui/ShellFixture.h"
#include "gui/app/FontSubstitutions.h"
#include "gui/ports/QtPrinter.h"
#include "support/SampleAccount.h"

using namespace purrlodge;
using namespace purrlodge::testing;
using namespace Qt::StringLiterals;

class PrintingTest : public QObject {
    Q_OBJECT

private slots:
    void initTestCase() { installFontSubstitutions(); }

    // Without a printer both pages are saved as PDF files, told in one message.
    void theAccountAndItsCopyAreSavedAsPdfAndToldOnce()
    {
        QTemporaryDir printouts;
        const QString folder = printouts.path();
        FakePorts fakes;
        QtPrinter printer(folder);
        QTemporaryDir data;
        Session session(
            Ports{fakes.ui, fakes.clock, fakes.random, fakes.profile, fakes.drives, printer},
            data.path().toStdString() + "/");
        session.printDialog.modeInForce = printDialogEveryTime;
        const SampleAccount sample;
        session.establishment = sample.establishment;
        session.client = sample.client;
        session.account = sample.account;
        if (printer.hasPrinter())
            QSKIP("a printer is installed: the jobs would go to it");

        QVERIFY(printAccountAndCopy(session, {"Thank you!", {}, 0.0f}));
        QCOMPARE(fakes.ui.titles(), std::vector<std::string>{"Printout Saved"});
        const QStringList files = QDir(folder).entryList({u"*.pdf"_s}, QDir::Files);
        QCOMPARE(files.size(), 2);
        for (const QString& file : files)
            QVERIFY(fakes.ui.messages[0].text.find(file.toStdString()) != std::string::npos);
    }

    void thePrintOptionDialogsHandOverTheChoices()
    {
        ShellFixture shell;
        QVERIFY(saveEstablishment(shell.session.folder, EstablishmentRecord{}));
        ModalAnswers answers({
            [](QWidget* dialog) {
                child<QRadioButton>(dialog, u"firstPrintOnlyRadio"_s)->setChecked(true);
                pressOk(dialog);
            },
            [](QWidget* dialog) {
                child<QCheckBox>(dialog, u"colourItem105CheckBox"_s)->setChecked(true);
                child<QRadioButton>(dialog, u"nameColour10Radio"_s)->setChecked(true);
                pressOk(dialog);
            },
        });
        shell.trigger(command::printDialogOnOff);
        shell.trigger(command::setPrintingOptions);
        QCOMPARE(answers.seen(), u"Print Dialog Box Option|Colour Printing Options"_s);

        QCOMPARE(shell.session.printDialog.modeInForce, printDialogFirstPrintOnly);
        const ColourPrintingForm options = colourPrintingFormOf(
            shell.session.establishment, shell.session.colourBlock, shell.session.ports.profile);
        ColourPrintingForm expected;
        expected.inColour[static_cast<std::size_t>(ColourItem::ClientsAccount)] = true;
        expected.nameColour = 10;
        QVERIFY(options == expected);
    }
};

QTEST_MAIN(PrintingTest)
#include "PrintingTest.moc"
