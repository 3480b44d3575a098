#include <QComboBox>
#include <QFileInfo>
#include <QTabWidget>
#include <QTreeWidget>

#include "gui/ShellFixture.h"
#include "gui/housekeeping/BarChart.h"

using namespace purrlodge;
using namespace purrlodge::testing;
using namespace Qt::StringLiterals;

class ListsAndReportsDialogsTest : public QObject {
    Q_OBJECT

private slots:
    void theListsAndTheRateCardPrintFromTheMenuAndTheToolBar()
    {
        ShellFixture shell;
        shell.addClient("Nguyen", {"Tibbles", "Smudge"});
        QCOMPARE(shell.window.actionsFor(command::listAllClients).size(), 2); // menu and tool bar

        int rowsShown = 0;
        {
            ModalAnswers onScreen({[&rowsShown](QWidget* d) {
                auto* choice = child<QComboBox>(d, u"listChoice"_s);
                choice->setCurrentIndex(choice->findText(u"Cat list"_s));
                auto* list = child<QTreeWidget>(d, u"clientList"_s);
                rowsShown = list->topLevelItemCount();
                button(d, u"printButton"_s)->click();
                press(QDialogButtonBox::Close)(d);
            }});
            shell.trigger(command::listAllClients);
            QCOMPARE(onScreen.seen(), u"List All Clients"_s);
            QCOMPARE(rowsShown, 2); // a row a cat
        }
        {
            ModalAnswers toPrint({[](QWidget* d) {
                button(d, u"fullListButton"_s)->click();
                pressOk(d);
            }});
            shell.trigger(command::clientLists);
            QCOMPARE(toPrint.seen(), u"Client Lists"_s);
        }

        shell.trigger(command::printCurrentRates);
        QStringList titles;
        for (const auto& job : shell.printer.jobs)
            titles << QString::fromStdString(job.title);
        QCOMPARE(titles, (QStringList{u"cat list"_s, u"Full Client List"_s, u"Rates"_s}));
    }

    void clientUsageAsksThePeriodThenShowsChartsAndPrints()
    {
        ShellFixture shell;
        shell.session.currentYear = 2023;
        shell.addClient("Nguyen", {"Tibbles"});

        int bars = 0;
        int tabs = 0;
        ModalAnswers answers({
            [](QWidget* d) {
                retype(d, u"fromDateEdit"_s, u"01/11/23"_s);
                retype(d, u"toDateEdit"_s, u"31/10/23"_s);
                pressOk(d);
            },
            pressOk, // the period ends before it starts
            [](QWidget* d) {
                retype(d, u"toDateEdit"_s, u"30/11/23"_s);
                pressOk(d);
            },
            [&](QWidget* d) {
                tabs = child<QTabWidget>(d, u"reportTabs"_s)->count();
                bars = child<BarChart>(d, u"daysUseChart"_s)->barCount();
                button(d, u"financialSummaryPrintButton"_s)->click();
                standardButton(d, QDialogButtonBox::Close)->click();
            },
        });
        shell.trigger(command::clientUsage);
        QCOMPARE(answers.seen(), u"Client Usage|Report Period|Client Usage|Client Usage"_s);
        QCOMPARE(tabs, 3);
        QCOMPARE(bars, 1);
        QCOMPARE(shell.printer.jobs.size(), std::size_t{1});
        QCOMPARE(shell.printer.jobs[0].title, std::string("Financial Summary"));
    }

    void theExportsAreOnTheMenuAndTheAddressFileIsWrittenThroughItsDialogs()
    {
        ShellFixture shell;
        shell.addClient("Nguyen", {"Tibbles"});
        // The commands run here show their dialogs only if they are wired; these others
        // are at least not greyed.
        for (const int id : {command::fileClientEmails, command::markInactiveClients,
                             command::countCatNames, command::listUniqueNames})
            QVERIFY(shell.window.actionsFor(id).first()->isEnabled());

        ModalAnswers addresses({
            [](QWidget* d) {
                button(d, u"catsStyleButton"_s)->click();
                pressOk(d);
            },
            pressOk, // Completed
            press(QDialogButtonBox::No),
        });
        shell.trigger(command::fileClientAddresses);
        QCOMPARE(addresses.seen(), u"Address Format|Completed|Open Data Folder"_s);
        QVERIFY(QFileInfo::exists(QString::fromStdString(shell.folder()) + u"Clientlist.txt"_s));
    }
};

QTEST_MAIN(ListsAndReportsDialogsTest)
#include "ListsAndReportsDialogsTest.moc"
