#include <QFileInfo>

#include "gui/ShellFixture.h"

using namespace purrlodge;
using namespace purrlodge::testing;
using namespace Qt::StringLiterals;

class ExportDialogsTest : public QObject {
    Q_OBJECT

private slots:
    void theExportsAreOnTheMenuAndTheAddressFileIsWrittenThroughItsDialogs()
    {
        ShellFixture shell;
        shell.addClient("Nguyen", {"Tibbles"});
        for (const int id :
             {command::fileClientAddresses, command::fileClientEmails, command::markInactiveClients,
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

QTEST_MAIN(ExportDialogsTest)
#include "ExportDialogsTest.moc"
