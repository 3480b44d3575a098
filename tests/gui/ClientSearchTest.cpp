#include <fstream>

#include "clients/LeavingCat.h"
#include "gui/ShellFixture.h"
#include "gui/clients/TabbedListBox.h"

using namespace purrlodge;
using namespace purrlodge::testing;
using namespace Qt::StringLiterals;

namespace {

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
};

} // namespace

class ClientSearchTest : public QObject {
    Q_OBJECT

private slots:
    void finderAsksAgainShowsItsRowsAndOpensTheChosenClientsLists()
    {
        MewtonShell shell;
        const std::string code = shell.clients[12].code.str();
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
                QCOMPARE(edit(dialog, u"nameEdit"_s)->text(), u"mewton"_s); // as typed
                typeName(u"Mewton1"_s)(dialog);
            },
            [](QWidget* dialog) {
                QVERIFY(!matchRow(dialog, 5)->isVisibleTo(dialog));
                QTest::mouseClick(matchRow(dialog, 4), Qt::LeftButton);
                pressOk(dialog);
            },
            [](QWidget* dialog) { clickLater(child<QPushButton>(dialog, u"otherCatsButton"_s)); },
            press(QDialogButtonBox::Close), // Other Cats
            [](QWidget* dialog) {
                clickLater(child<QPushButton>(dialog, u"specialNotesButton"_s));
            },
            press(QDialogButtonBox::Close), // the note book
            press(QDialogButtonBox::Close), // the details
        });
        shell.trigger(command::seeClientDetails);

        QCOMPARE(answers.seen(),
                 u"Client Index|Client Search Help|Client Index|Name Error|Client Index|"
                 u"Matching Clients|Client's Full Details|Other Cats|Client's Full Details|"
                 u"Other Cats|Client's Full Details"_s);
    }

    void globalSearchShowsAResultsDetails()
    {
        MewtonShell shell;
        ModalAnswers answers({
            [](QWidget* dialog) {
                QTest::keyClicks(edit(dialog, u"searchTextEdit"_s), u"puss1"_s);
                child<QRadioButton>(dialog, u"caseIndependentRadioButton"_s)->click();
                QTest::mouseClick(child<QPushButton>(dialog, u"untickAllButton"_s), Qt::LeftButton);
                QTest::mouseClick(child<QCheckBox>(dialog, u"catNameCheckBox"_s), Qt::LeftButton);
                clickLater(child<QPushButton>(dialog, u"searchButton"_s));
            },
            [](QWidget* dialog) {
                auto* showDetails = child<QPushButton>(dialog, u"showDetailsButton"_s);
                QVERIFY2(!showDetails->isEnabled(), "no line is selected yet");
                auto* list = child<TabbedListBox>(dialog, u"resultsList"_s);
                list->setCurrentIndex(list->model()->index(1, 0));
                clickLater(showDetails);
            },
            press(QDialogButtonBox::Close), // Client's Full Details
            press(QDialogButtonBox::Ok),    // back in the results
        });
        shell.trigger(command::globalSearch);

        QCOMPARE(answers.seen(),
                 u"Global Search|Matching Entries (Global Search)|Client's Full Details|"
                 u"Matching Entries (Global Search)"_s);
    }
};

QTEST_MAIN(ClientSearchTest)
#include "ClientSearchTest.moc"
