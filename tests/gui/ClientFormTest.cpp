#include <QCheckBox>
#include <QLabel>
#include <QLineEdit>
#include <QMessageBox>
#include <QRadioButton>
#include <QTest>

#include "app/CommandIds.h"
#include "clients/OtherCatsFile.h"
#include "gui/DialogInput.h"
#include "gui/ModalAnswers.h"
#include "gui/ShellFixture.h"
#include "gui/clients/ClientCommands.h"
#include "gui/clients/TDlg3.h"
#include "store/ClientFiles.h"

using namespace purrlodge;
using namespace purrlodge::testing;
using namespace Qt::StringLiterals;

namespace {

QString catBox(int row, const char* column)
{
    return u"cat%1%2Edit"_s.arg(row).arg(QLatin1StringView(column));
}

// An answer that checks a message box's text and closes it.
ModalAnswers::Answer expectMessage(const QString& text)
{
    return [text](QWidget* modal) {
        auto* box = qobject_cast<QMessageBox*>(modal);
        QVERIFY(box != nullptr);
        QCOMPARE(box->text(), text);
        clickLater(box->button(QMessageBox::Ok));
    };
}

} // namespace

class ClientFormTest : public QObject {
    Q_OBJECT

private slots:
    void newClientStaysOpenOnANameErrorAndSavesWhenCorrected()
    {
        ShellFixture shell;
        shell.session.currentYear = 2023;
        bool savedTooEarly = true;
        ModalAnswers answers({
            [](QWidget* dialog) {
                retype(dialog, u"surnameEdit"_s, u"Ng"_s);
                retype(dialog, u"firstNameEdit"_s, u"Ann"_s);
                retype(dialog, u"styleEdit"_s, u"Mrs"_s);
                retype(dialog, u"address1Edit"_s, u"1 Mews Row"_s);
                retype(dialog, u"address4Edit"_s, u"Purrington"_s);
                retype(dialog, u"telephoneEdit"_s, u"01234 567890"_s);
                retype(dialog, u"mobileEdit"_s, QString(90, u'7'));
                retype(dialog, u"emailEdit"_s, u"ann@example.com"_s);
                retype(dialog, u"vetEdit"_s, u"Dr Paws"_s);
                retype(dialog, catBox(1, "Name"), u"Tibbles"_s);
                retype(dialog, catBox(1, "Breed"), u"Moggy"_s);
                retype(dialog, catBox(1, "Colour"), u"Tabby"_s);
                retype(dialog, catBox(1, "BirthYear"), u"2019"_s);
                retype(dialog, catBox(1, "Sex"), u"f"_s);
                retype(dialog, catBox(1, "ChipInsurance"), u"C+I-"_s);
                retype(dialog, catBox(1, "LastVaccination"), u"06/23"_s);
                retype(dialog, catBox(3, "Name"), u"Pip"_s);
                retype(dialog, catBox(3, "Sex"), u"M"_s);
                retype(dialog, u"knownEdit"_s, u"1"_s);
                retype(dialog, u"lastInEdit"_s, u"01/02/23"_s);
                retype(dialog, u"note2Edit"_s, u"Nervous of dogs"_s);
                QTest::keyClick(dialog->findChild<QCheckBox*>(u"redNote2CheckBox"_s),
                                Qt::Key_Space);
                retype(dialog, u"favouriteFood3Edit"_s, u"Chicken"_s);
                retype(dialog, u"forbiddenFood1Edit"_s, u"Fish"_s);
                pressOk(dialog);
            },
            expectMessage(u"Surname must be more than 3 letters!"_s),
            [&](QWidget* dialog) {
                // Still open with everything as typed; nothing written yet.
                QCOMPARE(edit(dialog, u"surnameEdit"_s)->text(), u"Ng"_s);
                QCOMPARE(edit(dialog, catBox(1, "Name"))->text(), u"Tibbles"_s);
                QVERIFY(dialog->findChild<QCheckBox*>(u"redNote2CheckBox"_s)->isChecked());
                savedTooEarly = shell.session.folder.exists(currentIndexFile);
                retype(dialog, u"surnameEdit"_s, u"Nguyen"_s);
                pressOk(dialog);
            },
        });
        shell.trigger(command::newClient);

        QVERIFY(answers.allAnswered());
        QCOMPARE(answers.titles(), QStringList({u"Full Client Information"_s, u"Name Error"_s,
                                                u"Full Client Information"_s}));
        QVERIFY(!savedTooEarly);

        // The new client is the current one, and is on disk.
        const std::string code = shell.session.client.code.str();
        QVERIFY(!code.empty());
        QVERIFY(shell.session.folder.exists(clientFileName(code, extension::clientRecord)));
        ClientIndex index{};
        QVERIFY(readIndex(shell.session.folder, index));
        QCOMPARE(index.usedCount(), 1);
        QCOMPARE(index.entries[1].key.str(), "Nguyen");
        QCOMPARE(index.entries[1].code.str(), code);

        ClientRecord saved{};
        QVERIFY(readClientRecord(shell.session.folder, code, saved));
        QCOMPARE(saved.surname.str(), "Nguyen");
        QCOMPARE(saved.firstName.str(), "Ann");
        QCOMPARE(saved.style.str(), "Mrs");
        QCOMPARE(saved.address[0].str(), "1 Mews Row");
        QCOMPARE(saved.address[3].str(), "Purrington");
        QCOMPARE(saved.telephone.str(), "01234 567890");
        QCOMPARE(saved.mobile.str(), std::string(78, '7') + "::"); // the box takes 78
        QCOMPARE(saved.email.str(), "ann@example.com");
        QCOMPARE(saved.vet.str(), "Dr Paws");
        QCOMPARE(saved.catName[0].str(), "Tibbles");
        QCOMPARE(saved.catBreed[0].str(), "Moggy");
        QCOMPARE(saved.catColour[0].str(), "Tabby");
        QCOMPARE(saved.catBirthYear[0].get(), 2019);
        QCOMPARE(saved.catSex[0].get(), 4);
        QCOMPARE(saved.catMicrochip[0].get(), 2);
        QCOMPARE(saved.catInsurance[0].get(), 1);
        QVERIFY(saved.catLastVaccination[0].get() > 0);
        // Row 3 moves up into the empty second slot.
        QCOMPARE(saved.catName[1].str(), "Pip");
        QCOMPARE(saved.catSex[1].get(), 1);
        QCOMPARE(saved.catName[2].str(), "");
        QCOMPARE(saved.knownRating.get(), 1);
        QCOMPARE(saved.lastInDate.str(), "01/02/23");
        QCOMPARE(saved.notes[1].str(), "#R# Nervous of dogs");
        QCOMPARE(saved.favouriteFoods[0][2].str(), "Chicken");
        QCOMPARE(saved.forbiddenFoods[0][0].str(), "Fish");
    }

    void birthYearWarningCancelKeepsTheFormAndContinueSaves()
    {
        ShellFixture shell;
        shell.session.currentYear = 2023;
        ModalAnswers answers({
            [](QWidget* dialog) {
                retype(dialog, u"surnameEdit"_s, u"Fox"_s);
                retype(dialog, u"firstNameEdit"_s, u"Tom"_s);
                retype(dialog, u"knownEdit"_s, u"2"_s);
                retype(dialog, catBox(1, "Name"), u"Methuselah"_s);
                retype(dialog, catBox(1, "BirthYear"), u"1950"_s);
                pressOk(dialog);
            },
            [](QWidget* warning) {
                QCOMPARE(warning->findChild<QLabel*>(u"messageLabel"_s)->text(),
                         u"Date of Birth seems improbable"_s);
                clickLater(standardButton(warning, QDialogButtonBox::Cancel));
            },
            [&](QWidget* dialog) {
                QCOMPARE(dialog->windowTitle(), u"Full Client Information"_s);
                QVERIFY(!shell.session.folder.exists(currentIndexFile));
                pressOk(dialog);
            },
            press(QDialogButtonBox::Ok), // Continue
        });
        shell.trigger(command::newClient);

        QVERIFY(answers.allAnswered());
        QCOMPARE(answers.titles(),
                 QStringList({u"Full Client Information"_s, u"Apparent Date Error"_s,
                              u"Full Client Information"_s, u"Apparent Date Error"_s}));
        ClientRecord saved{};
        QVERIFY(readClientRecord(shell.session.folder, shell.session.client.code.str(), saved));
        QCOMPARE(saved.catBirthYear[0].get(), 1950);
    }

    void fullClientListIsRefusedBeforeTheForm()
    {
        ShellFixture shell;
        shell.session.index.count.set(maxClients);
        ModalAnswers answers({press(QDialogButtonBox::Ok)});
        shell.trigger(command::newClient);

        QVERIFY(answers.allAnswered());
        QCOMPARE(answers.titles(), QStringList({u"Client List Full"_s}));
    }

    void emptiedCatRowIsAskedAboutAndFiledAmongTheOtherCats()
    {
        ShellFixture shell;
        shell.session.currentYear = 2023;
        ClientRecord client{};
        client.firstName.set("Ann");
        client.surname.set("Nguyen");
        client.notes[0].set("#R# Nervous");
        const char* cats[] = {"Tibbles", "Smudge", "Pip"};
        for (int slot = 0; slot < 3; ++slot)
            client.catName[slot].set(cats[slot]);
        client.catColour[1].set("Grey");
        client.catBirthYear[1].set(2015);
        client.catSex[1].set(3);
        client.catMicrochip[1].set(2);
        QCOMPARE(
            addNewClient(shell.session.folder, shell.session.index, client, shell.session.draw),
            AddClientResult::Added);
        shell.session.client = client;
        const std::string code = client.code.str();

        ModalAnswers answers({
            [](QWidget* dialog) {
                // Filled from the record: the red line is ticked and shown without its marker.
                QCOMPARE(edit(dialog, u"note1Edit"_s)->text(), u"Nervous"_s);
                QVERIFY(dialog->findChild<QCheckBox*>(u"redNote1CheckBox"_s)->isChecked());
                QCOMPARE(edit(dialog, catBox(2, "ChipInsurance"))->text(), u"C+"_s);
                retype(dialog, catBox(2, "Name"), QString());
                pressOk(dialog);
            },
            [](QWidget* leaving) {
                QCOMPARE(leaving->findChild<QLabel*>(u"captionLabel"_s)->text(),
                         u"What happened to Smudge ?"_s);
                leaving->findChild<QRadioButton*>(u"newHomeRadioButton"_s)->setChecked(true);
                retype(leaving, u"notesEdit"_s, u"Lives with Ann's sister"_s);
                pressOk(leaving);
            },
            expectMessage(u"Smudge has been moved to Ann Nguyen's 'Other Cats' list"_s),
        });
        QVERIFY(editClient(&shell.window, shell.session));

        QVERIFY(answers.allAnswered());
        QCOMPARE(answers.titles(), QStringList({u"Full Client Information"_s,
                                                u"Change to Cats noted."_s, u"Other Cats"_s}));
        OtherCatsFile others{};
        QVERIFY(shell.session.folder.read(clientFileName(code, extension::otherCats), others));
        const OtherCatRecord& filed = others.cats[otherCatsKept - 1];
        QCOMPARE(filed.name.str(), "Smudge");
        QCOMPARE(filed.colour.str(), "Grey");
        QCOMPARE(filed.reason.str(), "Rehomed");
        QCOMPARE(filed.notes.str(), "Lives with Ann's sister");

        ClientRecord saved{};
        QVERIFY(readClientRecord(shell.session.folder, code, saved));
        QCOMPARE(saved.catName[1].str(), "Pip");
        QCOMPARE(saved.catName[2].str(), "");
        QCOMPARE(saved.notes[0].str(), "#R# Nervous");
    }

    void tabGoesThroughTheFormAsItReads()
    {
        TDlg3 dialog(ClientForm{}, [](const ClientForm&) { return FormVerdict::StayOpen; });
        dialog.show();
        QVERIFY(QTest::qWaitForWindowActive(&dialog));

        QStringList expected{u"surnameEdit"_s,  u"firstNameEdit"_s, u"styleEdit"_s,
                             u"address1Edit"_s, u"address2Edit"_s,  u"address3Edit"_s,
                             u"address4Edit"_s, u"telephoneEdit"_s, u"mobileEdit"_s,
                             u"emailEdit"_s,    u"vetEdit"_s};
        for (int row = 1; row <= catSlotCount; ++row)
            for (const char* column : {"Name", "Breed", "Colour", "BirthYear", "Sex",
                                       "ChipInsurance", "LastVaccination"})
                expected << catBox(row, column);
        expected << u"knownEdit"_s << u"lastInEdit"_s << u"lastOutEdit"_s;
        for (int food = 1; food <= foodsPerCat; ++food)
            expected << u"favouriteFood%1Edit"_s.arg(food);
        for (int food = 1; food <= foodsPerCat; ++food)
            expected << u"forbiddenFood%1Edit"_s.arg(food);
        for (int line = 1; line <= 4; ++line)
            expected << u"note%1Edit"_s.arg(line) << u"redNote%1CheckBox"_s.arg(line);

        QStringList visited;
        for (int step = 0; step < expected.size(); ++step) {
            QWidget* focused = QApplication::focusWidget();
            QVERIFY(focused != nullptr);
            visited << focused->objectName();
            QTest::keyClick(focused, Qt::Key_Tab);
        }
        QCOMPARE(visited, expected);
    }
};

QTEST_MAIN(ClientFormTest)
#include "ClientFormTest.moc"
