#include <QMenu>
#include <QSignalSpy>
#include <QToolBar>
#include <QWidgetAction>

#include "gui/ShellFixture.h"

using namespace purrlodge;
using namespace purrlodge::testing;
using namespace Qt::StringLiterals;

namespace {

// The menu's entries: "id text" for an item, "-" for a separator,
// "text{entries}" for a sub-popup.
QString describe(const QMenu* menu)
{
    QStringList entries;
    for (const QAction* action : menu->actions()) {
        if (action->isSeparator())
            entries << u"-"_s;
        else if (action->menu() != nullptr)
            entries << action->text() + u'{' + describe(action->menu()) + u'}';
        else
            entries << u"%1 %2"_s.arg(action->data().toInt()).arg(action->text());
    }
    return entries.join(u'|');
}

// Shows a menu as a person opens it (which runs the enablers), then closes it.
void openAndClose(TMyWindow& window, const QString& menuName)
{
    auto* menu = window.findChild<QMenu*>(menuName);
    menu->popup(QPoint(0, 0));
    menu->hide();
}

} // namespace

class MainWindowTest : public QObject {
    Q_OBJECT

private slots:
    void menuAndToolBarHoldEveryCommandInItsPlace()
    {
        ShellFixture shell;
        auto* help = shell.window.findChild<QMenu*>(u"helpMenu"_s);
        QCOMPARE(describe(help),
                 u"11845 &Setup Help|11862 &Backup Advice|-|11876 See Picture Notes|"
                 u"-|-|&Help on:{11870 Colour &Printing|11865 &Deleting a Client|"
                 u"11848 &Change the Data Directory|11873 &Emergency!}|-|"
                 u"11847 &About"_s);
        // The two separators in a row both show.
        help->popup(QPoint(0, 0));
        for (QAction* action : help->actions())
            QVERIFY(help->actionGeometry(action).height() > 0);
        help->hide();

        auto* bar = shell.window.findChild<QToolBar*>(u"mainToolBar"_s);
        QStringList items;
        for (QAction* action : bar->actions()) {
            if (qobject_cast<QWidgetAction*>(action) != nullptr) {
                items << u"gap %1"_s.arg(bar->widgetForAction(action)->maximumWidth());
                continue;
            }
            items << QString::number(action->data().toInt());
            // Each has its tip, and its picture compiled into the program.
            QVERIFY2(!action->toolTip().isEmpty() &&
                         action->icon().availableSizes().contains(QSize(24, 24)),
                     qPrintable(action->objectName()));
        }
        QCOMPARE(items.join(u' '), u"gap 20 11859 11854 11853 11852 11855 gap 3 11857 11851 11777 "
                                   u"11850 11867 11864 11866 11868 gap 10 21861 gap 60"_s);
        QCOMPARE(shell.window.actionsFor(command::setAutoMemo).size(), 3); // two menus, one button
    }

    void itemsAreGreyedEnabledTickedAndRunAsTheSessionSays()
    {
        ShellFixture shell;
        for (const int waiting : {command::backupMyData, command::listAllClients, command::about})
            for (const QAction* action : shell.window.actionsFor(waiting))
                QVERIFY2(!action->isEnabled(), qPrintable(action->objectName()));

        QAction* euro = shell.window.actionsFor(command::euroExchangeRate).first();
        shell.session.rates.currency.set(static_cast<std::uint32_t>(Currency::Euros));
        openAndClose(shell.window, u"setupMenu"_s);
        QVERIFY(!euro->isEnabled());
        shell.session.rates.currency.set(static_cast<std::uint32_t>(Currency::Sterling));
        openAndClose(shell.window, u"setupMenu"_s);
        QVERIFY(euro->isEnabled());

        // Each toggle's tick follows its setting, which is written at once.
        for (const auto& [toggle, startsTicked] :
             {std::pair{command::digitalClock, false},
              std::pair{command::showPicNoteIndicator, true}, std::pair{command::remindMe, true}}) {
            QAction* item = shell.window.actionsFor(toggle).first();
            QCOMPARE(item->isChecked(), startsTicked);
            for (const bool ticked : {!startsTicked, startsTicked}) {
                item->trigger();
                QCOMPARE(item->isChecked(), ticked);
            }
        }
        QCOMPARE(static_cast<int>(shell.profile.writes.size()), 6);

        shell.window.show();
        QVERIFY(QTest::qWaitForWindowExposed(&shell.window));
        shell.trigger(command::exitProgram);
        QVERIFY(!shell.window.isVisible());
    }

    void changeDataSetRegistersTheFolderAndAsksToQuit()
    {
        ShellFixture shell;
        QSignalSpy quit(&shell.window, &TMyWindow::quitRequested);
        const QString chosen = shell.dataFolder.path() + u"/Cats 2024"_s;
        ModalAnswers answers({
            press(QDialogButtonBox::Help),
            press(QDialogButtonBox::Ok), // the help
            [&](QWidget* dialog) {
                QCOMPARE(edit(dialog, u"folderEdit"_s)->text().toStdString(), shell.folder());
                edit(dialog, u"folderEdit"_s)->setText(chosen);
                pressOk(dialog);
            },
            press(QDialogButtonBox::Ok), // the confirmation
        });
        shell.trigger(command::changeDataSet);

        QCOMPARE(answers.seen(), u"Change Data Source|Change Data Source Help|Change Data Source|"
                                 u"Set Default Directory"_s);
        QCOMPARE(shell.profile.read("CurrentDir"), chosen.toStdString() + "/");
        QCOMPARE(quit.size(), 1);
        QCOMPARE(quit.first().first().toInt(), 1);
    }
};

QTEST_MAIN(MainWindowTest)
#include "MainWindowTest.moc"
