#include <QDir>

#include "clients/OtherCatsFile.h"
#include "gui/ShellFixture.h"

using namespace purrlodge;
using namespace purrlodge::testing;
using namespace Qt::StringLiterals;

namespace {

QString catBox(int row, const char* column)
{
    return u"cat%1%2Edit"_s.arg(row).arg(QLatin1StringView(column));
}

// The names a new client needs before the form will save it.
void typeNewClient(QWidget* dialog, const QString& surname)
{
    retype(dialog, u"surnameEdit"_s, surname);
    retype(dialog, u"firstNameEdit"_s, u"Ann"_s);
    retype(dialog, u"knownEdit"_s, u"1"_s);
}

} // namespace

class ClientFormTest : public QObject {
    Q_OBJECT

private slots:
    // The form stays open as typed through a refusal, a warning and a failed save.
    void newClientStaysOpenAsTypedThroughItsQuestionsAndAFailedSave()
    {
        ShellFixture shell;
        shell.session.currentYear = 2023;
        // A folder where the client index goes: the new client cannot be listed.
        QVERIFY(QDir(shell.dataFolder.path()).mkdir(QString::fromLatin1(currentIndexFile)));
        ModalAnswers answers({
            [](QWidget* dialog) {
                typeNewClient(dialog, u"Ng"_s);
                retype(dialog, catBox(1, "Name"), u"Methuselah"_s);
                retype(dialog, catBox(1, "BirthYear"), u"1950"_s);
                pressOk(dialog);
            },
            pressOk, // Name Error
            [](QWidget* dialog) {
                QCOMPARE(edit(dialog, catBox(1, "BirthYear"))->text(), u"1950"_s);
                retype(dialog, u"surnameEdit"_s, u"Nguyen"_s);
                pressOk(dialog);
            },
            press(QDialogButtonBox::Cancel), // Apparent Date Error
            pressOk,
            pressOk, // Continue
            pressOk, // File Error
            press(QDialogButtonBox::Cancel),
        });
        shell.trigger(command::newClient);

        QCOMPARE(answers.seen(), u"Full Client Information|Name Error|Full Client Information|"
                                 u"Apparent Date Error|Full Client Information|"
                                 u"Apparent Date Error|File Error|Full Client Information"_s);
    }

    void editedClientHandsBackTheEntriesAndWhyACatLeft()
    {
        ShellFixture shell;
        const ClientRecord client = shell.addClient("Nguyen", {"Tibbles", "Smudge"});
        ModalAnswers answers({
            typeName(u"Nguyen"_s),
            pressOk, // the one match
            [](QWidget* dialog) {
                retype(dialog, u"knownEdit"_s, u"1"_s);
                retype(dialog, u"note2Edit"_s, u"Nervous of dogs"_s);
                QTest::keyClick(child<QCheckBox>(dialog, u"redNote2CheckBox"_s), Qt::Key_Space);
                retype(dialog, catBox(2, "Name"), QString());
                pressOk(dialog);
            },
            [](QWidget* leaving) {
                child<QRadioButton>(leaving, u"newHomeRadioButton"_s)->setChecked(true);
                retype(leaving, u"notesEdit"_s, u"Lives with Ann's sister"_s);
                pressOk(leaving);
            },
            pressOk, // moved to the Other Cats list
        });
        shell.trigger(command::editClientDetails);

        QCOMPARE(answers.seen(), u"Client Index|Matching Clients|Full Client Information|"
                                 u"Change to Cats noted.|Other Cats"_s);
        QCOMPARE(shell.session.client.notes[1].str(), "#R# Nervous of dogs");
        OtherCatsFile others{};
        QVERIFY(shell.session.folder.read(clientFileName(client.code.str(), extension::otherCats),
                                          others));
        QCOMPARE(others.cats[otherCatsKept - 1].reason.str(), "Rehomed");
        QCOMPARE(others.cats[otherCatsKept - 1].notes.str(), "Lives with Ann's sister");
    }
};

QTEST_MAIN(ClientFormTest)
#include "ClientFormTest.moc"
