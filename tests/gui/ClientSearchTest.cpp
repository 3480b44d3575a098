#include <fstream>

#include <QCheckBox>
#include <QLabel>
#include <QLineEdit>
#include <QPushButton>
#include <QRadioButton>
#include <QTest>

#include "app/CommandIds.h"
#include "clients/ClientDetails.h"
#include "clients/ClientFinder.h"
#include "clients/GlobalSearch.h"
#include "clients/LeavingCat.h"
#include "clients/OtherCatsList.h"
#include "gui/DialogInput.h"
#include "gui/ModalAnswers.h"
#include "gui/ShellFixture.h"
#include "gui/Text1252.h"
#include "gui/clients/TabbedListBox.h"
#include "store/CatSlots.h"
#include "store/ClientFiles.h"
#include "support/DataSetGenerator.h"

using namespace purrlodge;
using namespace purrlodge::testing;
using namespace Qt::StringLiterals;

namespace {

QStringList shown(const std::vector<std::string>& lines)
{
    QStringList result;
    for (const auto& line : lines)
        result.append(fromWindows1252(line));
    return result;
}

QStringList listLines(QWidget* dialog, const QString& name)
{
    return child<TabbedListBox>(dialog, name)->lines();
}

// Types the name into "Client Index" and presses Enter, which is OK.
ModalAnswers::Answer typeName(const QString& name)
{
    return [name](QWidget* dialog) {
        auto* edit = child<QLineEdit>(dialog, u"nameEdit"_s);
        edit->clear();
        QTest::keyClicks(edit, name);
        QTest::keyClick(edit, Qt::Key_Return);
    };
}

// A generated data set as start-up leaves it: the index in memory.
struct DataSetShell : ShellFixture {
    explicit DataSetShell(int clients)
    {
        session.index = generateDataSet(session.folder, clients, 7);
        session.currentYear = generatedDataYear;
    }

    [[nodiscard]] ClientRecord record(const std::string& code) const
    {
        ClientRecord client{};
        readClientRecord(session.folder, code, client);
        return client;
    }

    [[nodiscard]] QStringList detailsOf(const std::string& code) const
    {
        return shown(clientDetailsListing(session.folder, record(code), code, session.currentYear,
                                          session.ports.clock)
                         .lines);
    }
};

} // namespace

class ClientSearchTest : public QObject {
    Q_OBJECT

private slots:
    void surnameTypedIntoTheFinderOpensTheChosenClientsDetails()
    {
        DataSetShell shell(120);
        // A surname shared by a few clients, so that the choice matters.
        std::string surname;
        FinderResult expected;
        for (int entry = 1; entry <= shell.session.index.usedCount() && surname.empty(); ++entry) {
            const std::string key = shell.session.index.entries[entry].key.str();
            expected =
                findClients(shell.session.folder, shell.session.index, FinderSearch::Person, key);
            if (expected.matches.size() >= 3 && !expected.tooManyMatches)
                surname = key;
        }
        QVERIFY(!surname.empty());
        const FinderMatch target = expected.matches.back();
        const int lastRow = static_cast<int>(expected.matches.size());

        ModalAnswers answers({
            typeName(fromWindows1252(surname)),
            [&](QWidget* dialog) {
                QCOMPARE(child<QLineEdit>(dialog, u"match1Edit"_s)->text(),
                         fromWindows1252(expected.rows[0]));
                QVERIFY(child<QRadioButton>(dialog, u"match1RadioButton"_s)->isChecked());
                QVERIFY(!child<QLineEdit>(dialog, u"match%1Edit"_s.arg(lastRow + 1))
                             ->isVisibleTo(dialog));
                QTest::mouseClick(child<QLineEdit>(dialog, u"match%1Edit"_s.arg(lastRow)),
                                  Qt::LeftButton);
                pressOk(dialog);
            },
            [&](QWidget* dialog) {
                QCOMPARE(listLines(dialog, u"detailsList"_s), shell.detailsOf(target.code));
                QVERIFY(!child<QPushButton>(dialog, u"printButton"_s)->isEnabled());
                QVERIFY(!child<QPushButton>(dialog, u"otherCatsButton"_s)->isEnabled());
                QVERIFY(!child<QPushButton>(dialog, u"specialNotesButton"_s)->isEnabled());
                clickLater(standardButton(dialog, QDialogButtonBox::Close));
            },
        });
        shell.trigger(command::seeClientDetails);

        QVERIFY(answers.allAnswered());
        QCOMPARE(answers.titles(), QStringList({u"Client Index"_s, u"Matching Clients"_s,
                                                u"Client's Full Details"_s}));
        QCOMPARE(shell.session.client.code.str(), target.code);
        QCOMPARE(shell.session.client.surname.str(), target.surname);
    }

    void catSearchMakesTheOwnerCurrent()
    {
        DataSetShell shell(40);
        // A client with a cat whose name gives few enough matches.
        std::string catName;
        std::string ownerCode;
        FinderResult expected;
        for (int entry = 1; entry <= shell.session.index.usedCount() && catName.empty(); ++entry) {
            const std::string code = shell.session.index.entries[entry].code.str();
            const ClientRecord owner = shell.record(code);
            for (int slot = 0; slot < catSlotCount && catName.empty(); ++slot) {
                const std::string name = owner.catName[slot].str();
                expected =
                    findClients(shell.session.folder, shell.session.index, FinderSearch::Cat, name);
                if (!name.empty() && expected.matches.size() >= 2 && !expected.tooManyMatches) {
                    catName = name;
                    ownerCode = code;
                }
            }
        }
        QVERIFY(!catName.empty());
        int ownerRow = 0;
        while (expected.matches[static_cast<std::size_t>(ownerRow)].code != ownerCode)
            ++ownerRow;

        ModalAnswers answers({
            [&](QWidget* dialog) {
                child<QRadioButton>(dialog, u"catRadioButton"_s)->click();
                typeName(fromWindows1252(catName))(dialog);
            },
            [&](QWidget* dialog) {
                for (std::size_t row = 0; row < expected.rows.size(); ++row)
                    QCOMPARE(child<QLineEdit>(dialog, u"match%1Edit"_s.arg(row + 1))->text(),
                             fromWindows1252(expected.rows[row]));
                child<QRadioButton>(dialog, u"match%1RadioButton"_s.arg(ownerRow + 1))
                    ->setChecked(true);
                pressOk(dialog);
            },
            [&](QWidget* dialog) {
                QCOMPARE(listLines(dialog, u"detailsList"_s), shell.detailsOf(ownerCode));
                clickLater(standardButton(dialog, QDialogButtonBox::Close));
            },
        });
        shell.trigger(command::seeClientDetails);

        QVERIFY(answers.allAnswered());
        QCOMPARE(shell.session.client.code.str(), ownerCode);
    }

    void refusedNamesKeywordsAndTooManyMatches()
    {
        DataSetShell shell(120);
        ModalAnswers answers({
            [](QWidget* dialog) { clickLater(standardButton(dialog, QDialogButtonBox::Help)); },
            press(QDialogButtonBox::Close), // Client Search Help
            typeName(u"wood"_s),
            press(QDialogButtonBox::Ok), // Name Error
            [](QWidget* dialog) {
                QCOMPARE(child<QLineEdit>(dialog, u"nameEdit"_s)->text(), u"wood"_s);
                typeName(u"InspectModeOn"_s)(dialog);
            },
            // A second look-up: W starts more than twelve surnames.
            typeName(u"W"_s),
            press(QDialogButtonBox::Ok), // Too Many Matches
            [](QWidget* dialog) {
                QVERIFY(child<QLineEdit>(dialog, u"match12Edit"_s)->isVisibleTo(dialog));
                clickLater(standardButton(dialog, QDialogButtonBox::Cancel));
            },
            // Edit Client Details takes a name with any first character.
            typeName(u"zzz"_s),
            [](QWidget* dialog) {
                QCOMPARE(child<QLineEdit>(dialog, u"match1Edit"_s)->text(),
                         u"No Client of name zzz found"_s);
                QVERIFY(!child<QRadioButton>(dialog, u"match1RadioButton"_s)->isChecked());
                QVERIFY(!child<QLineEdit>(dialog, u"match2Edit"_s)->isVisibleTo(dialog));
                pressOk(dialog);
            },
        });
        shell.trigger(command::seeClientDetails);
        QVERIFY(shell.session.diagnostics);
        shell.trigger(command::seeClientDetails);
        shell.trigger(command::editClientDetails);

        QVERIFY(answers.allAnswered());
        QCOMPARE(
            answers.titles(),
            QStringList({u"Client Index"_s, u"Client Search Help"_s, u"Client Index"_s,
                         u"Name Error"_s, u"Client Index"_s, u"Client Index"_s, u"Matches > 12"_s,
                         u"Matching Clients"_s, u"Client Index"_s, u"Matching Clients"_s}));
        QVERIFY2(shell.session.client.code.isEmpty(), "no client was chosen");
    }

    void globalSearchListsTheCoreLinesAndShowsAResultsDetails()
    {
        DataSetShell shell(120);
        GlobalSearchRequest request{"ginger", false, {}};
        request.groups.catColour = true;
        const GlobalSearchResult expected =
            globalSearch(shell.session.folder, shell.session.index, request);
        QVERIFY(expected.lines.size() > 2);
        const std::string chosenLine = expected.lines[1];
        const int chosenRow = 1;

        ModalAnswers answers({
            [](QWidget* dialog) {
                QTest::keyClicks(child<QLineEdit>(dialog, u"searchTextEdit"_s), u"ginger"_s);
                child<QRadioButton>(dialog, u"caseIndependentRadioButton"_s)->click();
                QTest::mouseClick(child<QPushButton>(dialog, u"tickAllButton"_s), Qt::LeftButton);
                QVERIFY(child<QCheckBox>(dialog, u"emailCheckBox"_s)->isChecked());
                QTest::mouseClick(child<QPushButton>(dialog, u"untickAllButton"_s), Qt::LeftButton);
                QTest::mouseClick(child<QCheckBox>(dialog, u"catColourCheckBox"_s), Qt::LeftButton);
                clickLater(child<QPushButton>(dialog, u"searchButton"_s));
            },
            [&](QWidget* dialog) {
                QCOMPARE(listLines(dialog, u"resultsList"_s), shown(expected.lines));
                auto* showDetails = child<QPushButton>(dialog, u"showDetailsButton"_s);
                QVERIFY(showDetails->isVisibleTo(dialog));
                QVERIFY2(!showDetails->isEnabled(), "no line is selected yet");
                child<TabbedListBox>(dialog, u"resultsList"_s)->setCurrentRow(chosenRow);
                clickLater(showDetails);
            },
            [&](QWidget* dialog) {
                QCOMPARE(listLines(dialog, u"detailsList"_s),
                         shell.detailsOf(codeOfResultLine(chosenLine)));
                clickLater(standardButton(dialog, QDialogButtonBox::Close));
            },
            press(QDialogButtonBox::Ok), // back in the results
            [](QWidget* dialog) {
                QTest::keyClicks(child<QLineEdit>(dialog, u"searchTextEdit"_s), u"zzzz"_s);
                QTest::mouseClick(child<QPushButton>(dialog, u"tickAllButton"_s), Qt::LeftButton);
                clickLater(child<QPushButton>(dialog, u"searchButton"_s));
            },
            [](QWidget* dialog) {
                QCOMPARE(listLines(dialog, u"resultsList"_s).last(),
                         fromWindows1252(globalSearchNoMatch));
                QVERIFY(!child<QPushButton>(dialog, u"showDetailsButton"_s)->isVisibleTo(dialog));
                pressOk(dialog);
            },
        });
        shell.trigger(command::globalSearch);
        shell.trigger(command::globalSearch);

        QVERIFY(answers.allAnswered());
        QCOMPARE(answers.titles(),
                 QStringList({u"Global Search"_s, u"Matching Entries (Global Search)"_s,
                              u"Client's Full Details"_s, u"Matching Entries (Global Search)"_s,
                              u"Global Search"_s, u"Matching Entries (Global Search)"_s}));
        QVERIFY2(shell.session.client.code.isEmpty(), "a result's details leave no client");
    }

    void detailsOpenTheOtherCatsAndTheNoteBook()
    {
        DataSetShell shell(30);
        const std::string code = shell.session.index.entries[3].code.str();
        const ClientRecord client = shell.record(code);
        appendOtherCat(shell.session.folder, code,
                       otherCatRecordOf({"Tibbles", "Moggy", "Tabby", 2, 2001},
                                        {LeavingReason::NewHome, "Went to her sister"},
                                        CivilTime{2009, 3, 7}, 2009));
        std::ofstream(shell.session.folder.fileName(clientFileName(code, extension::noteBook)))
            << "Needs a quiet pen\r\n";
        const FinderResult matches = findClients(shell.session.folder, shell.session.index,
                                                 FinderSearch::Person, client.surname.str());
        int row = 0;
        while (matches.matches[static_cast<std::size_t>(row)].code != code)
            ++row;
        const auto listing = [&](OtherCatsMode mode) {
            return otherCatsListing(shell.session.folder, code, client, mode);
        };

        ModalAnswers answers({
            typeName(fromWindows1252(client.surname.str())),
            [&](QWidget* dialog) {
                child<QRadioButton>(dialog, u"match%1RadioButton"_s.arg(row + 1))->setChecked(true);
                pressOk(dialog);
            },
            [](QWidget* dialog) {
                QVERIFY(child<QPushButton>(dialog, u"specialNotesButton"_s)->isEnabled());
                clickLater(child<QPushButton>(dialog, u"otherCatsButton"_s));
            },
            [&](QWidget* dialog) {
                const OtherCatsListing expected = listing(OtherCatsMode::EarlierSpecialNotes);
                QCOMPARE(child<QLabel>(dialog, u"headingLabel"_s)->text(),
                         fromWindows1252(expected.heading));
                QCOMPARE(listLines(dialog, u"otherCatsList"_s), shown(expected.lines));
                clickLater(standardButton(dialog, QDialogButtonBox::Close));
            },
            [](QWidget* dialog) {
                clickLater(child<QPushButton>(dialog, u"specialNotesButton"_s));
            },
            [&](QWidget* dialog) {
                const OtherCatsListing expected = listing(OtherCatsMode::NoteBook);
                QCOMPARE(listLines(dialog, u"otherCatsList"_s), shown(expected.lines));
                QCOMPARE(listLines(dialog, u"otherCatsList"_s).first(), u"Needs a quiet pen"_s);
                clickLater(standardButton(dialog, QDialogButtonBox::Close));
            },
            press(QDialogButtonBox::Close), // the details
        });
        shell.trigger(command::seeClientDetails);

        QVERIFY(answers.allAnswered());
        QCOMPARE(answers.titles(),
                 QStringList({u"Client Index"_s, u"Matching Clients"_s, u"Client's Full Details"_s,
                              u"Other Cats"_s, u"Client's Full Details"_s, u"Other Cats"_s,
                              u"Client's Full Details"_s}));
    }
};

QTEST_MAIN(ClientSearchTest)
#include "ClientSearchTest.moc"
