#include "app/commands/Printing.h"

#include <QDir>
#include <QProcess>
#include <QTemporaryDir>

#include "accounts/CatteryFiles.h"
#include "app/StartupSequence.h"
#include "gui/ShellFixture.h"
#include "gui/app/FontSubstitutions.h"
#include "gui/ports/QtPrinter.h"
#include "support/FakeQuestions.h"
#include "support/SampleAccount.h"

using namespace purrlodge;
using namespace purrlodge::testing;
using namespace Qt::StringLiterals;

namespace {

// The text of a PDF file as pdftotext reads it, its layout kept.
QString pdfText(const QString& file)
{
    QProcess reader;
    reader.start(u"pdftotext"_s, {u"-layout"_s, file, u"-"_s});
    if (!reader.waitForFinished(20000) || reader.exitCode() != 0)
        return {};
    return QString::fromUtf8(reader.readAllStandardOutput());
}

// The sample account as the session's account in preparation.
void prepareAccount(Session& session)
{
    const SampleAccount sample;
    session.establishment = sample.establishment;
    session.client = sample.client;
    session.account = sample.account;
}

} // namespace

class PrintingTest : public QObject {
    Q_OBJECT

private slots:
    void initTestCase() { installFontSubstitutions(); }

    // Without a printer both pages are saved as PDF files, told in one message.
    void theAccountAndItsCopyAreSavedAsPdfAndToldOnce()
    {
        QTemporaryDir printouts;
        // PURRLODGE_PRINTOUTS keeps the files to look at.
        const QString folder = qEnvironmentVariableIsSet("PURRLODGE_PRINTOUTS")
                                   ? qEnvironmentVariable("PURRLODGE_PRINTOUTS")
                                   : printouts.path();
        FakePorts fakes;
        QtPrinter printer(folder);
        QTemporaryDir data;
        Session session(
            Ports{fakes.ui, fakes.clock, fakes.random, fakes.profile, fakes.drives, printer},
            data.path().toStdString() + "/");
        session.printDialog.modeInForce = printDialogEveryTime;
        prepareAccount(session);
        if (printer.hasPrinter())
            QSKIP("a printer is installed: the jobs would go to it");

        QVERIFY(printAccountAndCopy(session, {"Thank you!", {}, 0.0f}));
        QCOMPARE(fakes.ui.titles(), std::vector<std::string>{"Printout Saved"});
        const QStringList files =
            QDir(folder).entryList({u"*.pdf"_s}, QDir::Files, QDir::Time | QDir::Reversed);
        QVERIFY(files.size() >= 2);
        const QString account = pdfText(folder + u'/' + files[files.size() - 2]);
        const QString copy = pdfText(folder + u'/' + files.last());
        QVERIFY2(account.contains(u"Whiskers Lodge"_s) && account.contains(u"No.1042"_s) &&
                     account.contains(u"Balance due: \u00a3125.00"_s) &&
                     account.contains(u"Thank you!"_s),
                 qPrintable(account));
        QVERIFY2(copy.contains(u"Balance: \u00a3125.00"_s) &&
                     copy.contains(u"Tibbles, Felix, Smudge,"_s),
                 qPrintable(copy));
        QVERIFY2(files[files.size() - 2].startsWith(u"Client's Account "_s), qPrintable(files[0]));
        for (const QString& file : files)
            QVERIFY(fakes.ui.messages[0].text.find(file.toStdString()) != std::string::npos);
    }

    // The options chosen in their dialogs are read back at the next start.
    void thePrintOptionsSurviveARestart()
    {
        ShellFixture shell;
        QVERIFY(saveEstablishment(shell.session.folder, EstablishmentRecord{}));
        ModalAnswers answers({
            [](QWidget* dialog) {
                QVERIFY(child<QRadioButton>(dialog, u"everyTimeRadio"_s)->isChecked());
                child<QRadioButton>(dialog, u"firstPrintOnlyRadio"_s)->setChecked(true);
                pressOk(dialog);
            },
            [](QWidget* dialog) {
                child<QCheckBox>(dialog, u"colourItem105CheckBox"_s)->setChecked(true);
                child<QCheckBox>(dialog, u"namesOnAccountCheckBox"_s)->setChecked(true);
                child<QRadioButton>(dialog, u"nameColour10Radio"_s)->setChecked(true);
                pressOk(dialog);
            },
        });
        shell.trigger(command::printDialogOnOff);
        shell.trigger(command::setPrintingOptions);
        QCOMPARE(answers.seen(), u"Print Dialog Box Option|Colour Printing Options"_s);

        // The next start reads them back.
        Session restarted(
            Ports{shell.ui, shell.clock, shell.random, shell.profile, shell.drives, shell.printer},
            "");
        shell.profile.values["currentdir"] = shell.folder();
        ScriptedSetupQuestions questions;
        QVERIFY(runStartupSequence(restarted, questions, {}).carryOn);
        QCOMPARE(restarted.printDialog.modeInForce, printDialogFirstPrintOnly);
        const ColourPrintingForm options = colourPrintingFormOf(
            restarted.establishment, restarted.colourBlock, restarted.ports.profile);
        ColourPrintingForm expected;
        expected.inColour[static_cast<std::size_t>(ColourItem::ClientsAccount)] = true;
        expected.nameColour = 10;
        expected.namesOnAccount = true;
        QVERIFY(options == expected);
    }
};

QTEST_MAIN(PrintingTest)
#include "PrintingTest.moc"
