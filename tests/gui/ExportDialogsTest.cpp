#include <QFileInfo>

#include "gui/ShellFixture.h"

using namespace purrlodge;
using namespace purrlodge::testing;
using namespace Qt::StringLiterals;

class ExportDialogsTest : public QObject {
    Q_OBJECT

private slots:
    void theMenuRunsTheExportsThroughTheirDialogs()
    {
        ShellFixture shell;
        shell.addClient("Nguyen", {"Tibbles"});
        for (const int id :
             {command::fileClientAddresses, command::fileClientEmails, command::markInactiveClients,
              command::countCatNames, command::listUniqueNames})
            QVERIFY(shell.window.actionsFor(id).first()->isEnabled());

        {
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
            QVERIFY(
                QFileInfo::exists(QString::fromStdString(shell.folder()) + u"Clientlist.txt"_s));
        }

        QString result;
        ModalAnswers inactive({[&result](QWidget* d) {
            retype(d, u"dateEdit"_s, u"01/01/30"_s);
            QTest::mouseClick(standardButton(d, QDialogButtonBox::Ok), Qt::LeftButton);
            result = child<QLabel>(d, u"resultLabel"_s)->text();
            clickLater(standardButton(d, QDialogButtonBox::Close));
        }});
        shell.trigger(command::markInactiveClients);
        QCOMPARE(inactive.seen(), u"Inactive Clients"_s);
        QVERIFY2(result.contains(u"Clients examined"_s), qPrintable(result));
    }
};

QTEST_MAIN(ExportDialogsTest)
#include "ExportDialogsTest.moc"
