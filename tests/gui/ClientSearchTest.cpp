#include <fstream>

#include "clients/ClientDetails.h"
#include "clients/GlobalSearch.h"
#include "clients/LeavingCat.h"
#include "gui/ShellFixture.h"
#include "gui/Text1252.h"
#include "gui/clients/TabbedListBox.h"

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

QLineEdit* matchRow(QWidget* dialog, int row)
{
    return edit(dialog, u"match%1Edit"_s.arg(row));
}

// Thirteen clients, Mewton01 owning Puss1 to Mewton13 owning Puss13: one too
// many for the finder's twelve rows.
struct MewtonShell : ShellFixture {
    std::vector<ClientRecord> clients;

    MewtonShell()
    {
        for (int n = 1; n <= 13; ++n) {
            const std::string cat = "Puss" + std::to_string(n);
            clients.push_back(
                addClient((n < 10 ? "Mewton0" : "Mewton") + std::to_string(n), {cat.c_str()}));
        }
    }

    [[nodiscard]] QStringList detailsOf(const ClientRecord& client) const
    {
        return shown(clientDetailsListing(session.folder, client, client.code.str(),
                                          session.currentYear, session.ports.clock)
                         .lines);
    }
};

} // namespace

class ClientSearchTest : public QObject {
    Q_OBJECT

private slots:
    void finderAsksAgainShowsItsRowsAndOpensTheChosenClientsLists()
    {
        MewtonShell shell;
        const ClientRecord& chosen = shell.clients[12];
        const std::string code = chosen.code.str();
        QVERIFY(appendOtherCat(shell.session.folder, code,
                               otherCatRecordOf({"Tibbles", "Moggy", "Tabby", 2, 2001},
                                                {LeavingReason::NewHome, "Went to her sister"},
                                                CivilTime{2009, 3, 7}, 2009)));
        std::ofstream(shell.session.folder.fileName(clientFileName(code, extension::noteBook)))
            << "Needs a quiet pen\r\n";

        ModalAnswers answers({
            press(QDialogButtonBox::Help),
            press(QDialogButtonBox::Close), // Client Search Help
            typeName(u"mewton"_s),
            pressOk, // Name Error
            [](QWidget* dialog) {
                // Shown again as typed, to be put right.
                QCOMPARE(edit(dialog, u"nameEdit"_s)->text(), u"mewton"_s);
                typeName(u"Mewton"_s)(dialog);
            },
            // More than twelve: the rows shown are still the first twelve matches'.
            pressOk, // Too Many Matches
            [](QWidget* dialog) {
                for (int row = 1; row <= 12; ++row)
                    QCOMPARE(matchRow(dialog, row)->text(),
                             u"Mewton%1 (Puss%2)"_s.arg(row, 2, 10, QChar(u'0')).arg(row));
                press(QDialogButtonBox::Cancel)(dialog);
            },
            typeName(u"Mewton1"_s),
            [](QWidget* dialog) {
                QCOMPARE(matchRow(dialog, 1)->text(), u"Mewton10 (Puss10)"_s);
                QVERIFY(child<QRadioButton>(dialog, u"match1RadioButton"_s)->isChecked());
                QVERIFY(!matchRow(dialog, 5)->isVisibleTo(dialog));
                QTest::mouseClick(matchRow(dialog, 4), Qt::LeftButton);
                pressOk(dialog);
            },
            [&](QWidget* dialog) {
                QCOMPARE(listLines(dialog, u"detailsList"_s), shell.detailsOf(chosen));
                clickLater(child<QPushButton>(dialog, u"otherCatsButton"_s));
            },
            [](QWidget* dialog) {
                QVERIFY(listLines(dialog, u"otherCatsList"_s).join(u'\n').contains(u"Tibbles"_s));
                press(QDialogButtonBox::Close)(dialog);
            },
            [](QWidget* dialog) {
                clickLater(child<QPushButton>(dialog, u"specialNotesButton"_s));
            },
            [](QWidget* dialog) {
                QCOMPARE(listLines(dialog, u"otherCatsList"_s).first(), u"Needs a quiet pen"_s);
                press(QDialogButtonBox::Close)(dialog);
            },
            press(QDialogButtonBox::Close), // the details
            // Edit Client Details takes a name with any first character.
            [](QWidget* dialog) {
                child<QRadioButton>(dialog, u"catRadioButton"_s)->click();
                typeName(u"zzz"_s)(dialog);
            },
            [](QWidget* dialog) {
                QCOMPARE(matchRow(dialog, 1)->text(), u"No Cat of name zzz found"_s);
                QVERIFY(!child<QRadioButton>(dialog, u"match1RadioButton"_s)->isChecked());
                QVERIFY(!matchRow(dialog, 2)->isVisibleTo(dialog));
                pressOk(dialog);
            },
        });
        shell.trigger(command::seeClientDetails);
        shell.trigger(command::seeClientDetails);
        shell.trigger(command::editClientDetails);

        QCOMPARE(answers.seen(),
                 u"Client Index|Client Search Help|Client Index|Name Error|Client Index|"
                 u"Matches > 12|Matching Clients|Client Index|Matching Clients|"
                 u"Client's Full Details|Other Cats|Client's Full Details|Other Cats|"
                 u"Client's Full Details|Client Index|Matching Clients"_s);
        QCOMPARE(shell.session.client.code.str(), code); // a finder that finds nothing keeps it
    }

    void globalSearchListsTheCoreLinesAndShowsAResultsDetails()
    {
        MewtonShell shell;
        GlobalSearchRequest request{"puss1", false, {}}; // Puss1 and Puss10 to Puss13
        request.groups.catName = true;
        const GlobalSearchResult expected =
            globalSearch(shell.session.folder, shell.session.index, request);

        ModalAnswers answers({
            [](QWidget* dialog) {
                QTest::keyClicks(edit(dialog, u"searchTextEdit"_s), u"puss1"_s);
                child<QRadioButton>(dialog, u"caseIndependentRadioButton"_s)->click();
                QTest::mouseClick(child<QPushButton>(dialog, u"tickAllButton"_s), Qt::LeftButton);
                QTest::mouseClick(child<QPushButton>(dialog, u"untickAllButton"_s), Qt::LeftButton);
                QTest::mouseClick(child<QCheckBox>(dialog, u"catNameCheckBox"_s), Qt::LeftButton);
                clickLater(child<QPushButton>(dialog, u"searchButton"_s));
            },
            [&](QWidget* dialog) {
                QCOMPARE(listLines(dialog, u"resultsList"_s), shown(expected.lines));
                auto* showDetails = child<QPushButton>(dialog, u"showDetailsButton"_s);
                QVERIFY2(!showDetails->isEnabled(), "no line is selected yet");
                auto* list = child<TabbedListBox>(dialog, u"resultsList"_s);
                list->setCurrentIndex(list->model()->index(1, 0));
                clickLater(showDetails);
            },
            [&](QWidget* dialog) {
                QCOMPARE(listLines(dialog, u"detailsList"_s), shell.detailsOf(shell.clients[9]));
                press(QDialogButtonBox::Close)(dialog);
            },
            press(QDialogButtonBox::Ok), // back in the results
        });
        shell.trigger(command::globalSearch);

        QCOMPARE(answers.seen(),
                 u"Global Search|Matching Entries (Global Search)|Client's Full Details|"
                 u"Matching Entries (Global Search)"_s);
    }
};

QTEST_MAIN(ClientSearchTest)
#include "ClientSearchTest.moc"
