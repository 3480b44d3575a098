#include <QComboBox>
#include <QTreeWidget>

#include "gui/ShellFixture.h"

using namespace purrlodge;
using namespace purrlodge::testing;
using namespace Qt::StringLiterals;

class ClientListDialogsTest : public QObject {
    Q_OBJECT

private slots:
    void theListsAndTheRateCardPrintFromTheMenuAndTheToolBar()
    {
        ShellFixture shell;
        shell.addClient("Nguyen", {"Tibbles", "Smudge"});
        QCOMPARE(shell.window.actionsFor(command::listAllClients).size(), 2); // menu and tool bar
        for (const int id :
             {command::listAllClients, command::clientLists, command::printCurrentRates})
            QVERIFY(shell.window.actionsFor(id).first()->isEnabled());

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
};

QTEST_MAIN(ClientListDialogsTest)
#include "ClientListDialogsTest.moc"
