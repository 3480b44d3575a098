#include <filesystem>

#include <QAction>
#include <QLineEdit>
#include <QMenu>
#include <QMenuBar>
#include <QSignalSpy>
#include <QTest>
#include <QTimer>
#include <QToolBar>
#include <QWidgetAction>

#include "app/CommandIds.h"
#include "gui/ModalAnswers.h"
#include "gui/ShellFixture.h"
#include "gui/app/ClockFace.h"

using namespace purrlodge;
using namespace purrlodge::testing;
using namespace Qt::StringLiterals;

namespace {

QStringList texts(std::initializer_list<const char*> items)
{
    QStringList result;
    for (const char* item : items)
        result << QString::fromUtf8(item);
    return result;
}

// One line per entry: "id text" for an item, "-" for a separator, "> text"
// for a sub-popup followed by its entries indented.
QStringList describe(const QMenu* menu, const QString& indent = {})
{
    QStringList lines;
    for (const QAction* action : menu->actions()) {
        if (action->isSeparator())
            lines << indent + QStringLiteral("-");
        else if (action->menu() != nullptr)
            lines << indent + QStringLiteral("> ") + action->text()
                  << describe(action->menu(), indent + QStringLiteral("  "));
        else
            lines << indent + QString::number(action->data().toInt()) + QLatin1Char(' ') +
                         action->text();
    }
    return lines;
}

QMenu* popup(TMyWindow& window, const char* objectName)
{
    return window.findChild<QMenu*>(QString::fromLatin1(objectName));
}

// Shows a menu as a person opens it (which runs the enablers), then closes it.
void openAndClose(QMenu* menu)
{
    menu->popup(QPoint(0, 0));
    menu->hide();
}

class EmptyFolder {
public:
    EmptyFolder() { std::filesystem::create_directories(path_); }
    ~EmptyFolder() { std::filesystem::remove_all(path_); }
    [[nodiscard]] std::string path() const { return path_.string(); }

private:
    std::filesystem::path path_ =
        std::filesystem::temp_directory_path() /
        ("purrlodge-gui-" + std::to_string(QCoreApplication::applicationPid()));
};

} // namespace

class MainWindowTest : public QObject {
    Q_OBJECT

private slots:
    void menuHoldsEveryCommandInItsPlace()
    {
        ShellFixture shell;
        QStringList popups;
        for (const QAction* action : shell.window.menuBar()->actions())
            popups << action->text();
        QCOMPARE(popups, texts({"&Setup", "&Tasks", "&Good-Housekeeping", "Special &Operations",
                                "&Print Jobs", "&Help"}));

        QCOMPARE(describe(popup(shell.window, "setupMenu")),
                 texts({"943 &Set Account Number", "11869 Set Printing &Options",
                        "11843 &Cattery Details", "11849 &Print Dialog on/off",
                        "11846 &Euro Exchange Rate", "11868 Set &Auto Memo",
                        "11882 SetAccount Note", "11880 Set Standard E&xtra", "942 Set &Rates",
                        "11875 Show Pic-Note indicator", "11861 Digi&tal Clock", "-",
                        "11844 S&etup Prnter", "-", "11842 Change &Data Set"}));
        QCOMPARE(describe(popup(shell.window, "tasksMenu")).mid(11),
                 texts({"11866 &Make Notes", "11868 Set AutoMemo", "-", "18873 E&xit"}));
        QCOMPARE(describe(popup(shell.window, "goodHousekeepingMenu")),
                 texts({"11858 &Backup My Data", "11871 Restore Data &From Backup", "-",
                        "11860 &Show Last Backup", "11856 &Remind Me!", "11872 &Where's My Stuff?",
                        "-", "11883 File Client &Emails", "11863 &File Client Addresses"}));
        QCOMPARE(describe(popup(shell.window, "helpMenu")),
                 texts({"11845 &Setup Help", "11862 &Backup Advice", "-", "11876 See Picture Notes",
                        "-", "-", "> &Help on:", "  11870 Colour &Printing",
                        "  11865 &Deleting a Client", "  11848 &Change the Data Directory",
                        "  11873 &Emergency!", "-", "11847 &About"}));

        // The two separators in a row both show.
        QMenu* help = popup(shell.window, "helpMenu");
        help->popup(QPoint(0, 0));
        for (QAction* action : help->actions())
            if (action->isSeparator())
                QVERIFY(help->actionGeometry(action).height() > 0);
        help->hide();

        // Every item is reachable by name and carries its command.
        for (const QAction* action : shell.window.findChildren<QAction*>())
            if (!action->isSeparator() && action->data().isValid())
                QVERIFY2(!action->objectName().isEmpty(), qPrintable(action->text()));
        QCOMPARE(shell.window.actionsFor(command::setAutoMemo).size(), 3); // two menus, one button
    }

    void toolBarButtonsAndGapsInOrder()
    {
        ShellFixture shell;
        auto* bar = shell.window.findChild<QToolBar*>(QStringLiteral("mainToolBar"));
        QVERIFY(bar != nullptr);
        QStringList items;
        for (QAction* action : bar->actions()) {
            if (qobject_cast<QWidgetAction*>(action) != nullptr) {
                const QWidget* gap = bar->widgetForAction(action);
                QCOMPARE(gap->minimumWidth(), gap->maximumWidth());
                items << QStringLiteral("gap %1").arg(gap->minimumWidth());
                continue;
            }
            items << QString::number(action->data().toInt());
            QVERIFY2(!action->toolTip().isEmpty(), qPrintable(action->objectName()));
            // The pictures are compiled into the program.
            QVERIFY2(action->icon().availableSizes().contains(QSize(24, 24)),
                     qPrintable(action->objectName()));
        }
        QCOMPARE(items, texts({"gap 20", "11859", "11854", "11853", "11852", "11855", "gap 3",
                               "11857", "11851", "11777", "11850", "11867", "11864", "11866",
                               "11868", "gap 10", "21861", "gap 60"}));
    }

    void commandsWithoutAnActionAreGreyed()
    {
        ShellFixture shell;
        QVERIFY(shell.window.actionsFor(command::catteryDetails).first()->isEnabled());
        QVERIFY(shell.window.actionsFor(command::exitProgram).first()->isEnabled());
        QVERIFY(shell.window.actionsFor(command::newClient).first()->isEnabled());
        for (const int waiting :
             {command::issueAccount, command::backupMyData, command::setAutoMemo,
              command::runPendingPrintout, command::about})
            for (const QAction* action : shell.window.actionsFor(waiting))
                QVERIFY2(!action->isEnabled(), qPrintable(action->objectName()));
    }

    void toggleFlipsAndWritesAtOnce_data()
    {
        QTest::addColumn<int>("commandId");
        QTest::addColumn<QString>("key");
        QTest::addColumn<QString>("firstValue");
        QTest::addColumn<QString>("secondValue");
        QTest::newRow("Digital Clock") << command::digitalClock << u"ClkTyp"_s << u"D"_s << u"C"_s;
        QTest::newRow("Show Pic-Note indicator")
            << command::showPicNoteIndicator << u"musnotes"_s << u"N"_s << u"Y"_s;
        QTest::newRow("Remind Me!") << command::remindMe << u"RemStatus"_s << u"0"_s << u"1"_s;
    }

    void toggleFlipsAndWritesAtOnce()
    {
        QFETCH(int, commandId);
        QFETCH(QString, key);
        QFETCH(QString, firstValue);
        QFETCH(QString, secondValue);
        ShellFixture shell;
        QAction* item = shell.window.actionsFor(commandId).first();
        // The start-up defaults: analog clock, indicator on, reminder on.
        const bool startsChecked = commandId != command::digitalClock;
        QCOMPARE(item->isChecked(), startsChecked);

        item->trigger();
        QCOMPARE(QString::fromStdString(shell.profile.read(key.toStdString())), firstValue);
        QCOMPARE(item->isChecked(), !startsChecked);
        item->trigger();
        QCOMPARE(QString::fromStdString(shell.profile.read(key.toStdString())), secondValue);
        QCOMPARE(item->isChecked(), startsChecked);
        QCOMPARE(static_cast<int>(shell.profile.writes.size()), 2);
    }

    void enablersFollowTheSessionWhenTheMenuOpens()
    {
        ShellFixture shell;
        int euroRuns = 0;
        shell.window.setCommand(command::euroExchangeRate, [&] { ++euroRuns; });
        shell.window.setCommand(command::seePictureNotes, [] {});
        QAction* euro = shell.window.actionsFor(command::euroExchangeRate).first();
        QAction* notes = shell.window.actionsFor(command::seePictureNotes).first();

        shell.session.rates.currency.set(static_cast<std::uint32_t>(Currency::Euros));
        openAndClose(popup(shell.window, "setupMenu"));
        QVERIFY(!euro->isEnabled());
        shell.session.rates.currency.set(static_cast<std::uint32_t>(Currency::Sterling));
        openAndClose(popup(shell.window, "setupMenu"));
        QVERIFY(euro->isEnabled());
        euro->trigger();
        QCOMPARE(euroRuns, 1);

        shell.session.shell.pictureIndex = 4;
        shell.session.shell.pictureFlags[3] = true;
        openAndClose(popup(shell.window, "helpMenu"));
        QVERIFY(!notes->isEnabled());
        shell.session.shell.pictureFlags[4] = true;
        openAndClose(popup(shell.window, "helpMenu"));
        QVERIFY(notes->isEnabled());
    }

    void clockTickRepaintsAndRestartsTheMinuteTimer()
    {
        ShellFixture shell;
        shell.window.show();
        QVERIFY(QTest::qWaitForWindowExposed(&shell.window));
        auto* timer = shell.window.findChild<QTimer*>(QStringLiteral("clockTimer"));
        QVERIFY(timer != nullptr);
        QCOMPARE(timer->interval(), 60000);

        int paints = 0;
        struct PaintCounter : QObject {
            int& count;
            explicit PaintCounter(int& c) : count(c) {}
            bool eventFilter(QObject*, QEvent* event) override
            {
                count += event->type() == QEvent::Paint;
                return false;
            }
        } counter(paints);
        QCoreApplication::processEvents();
        shell.window.clockFace()->installEventFilter(&counter);
        timer->start(5); // bring the next tick forward
        QTRY_VERIFY(paints > 0);
        QVERIFY(timer->isActive());
        QCOMPARE(timer->interval(), 60000);
    }

    void changeDataSetRegistersTheFolderAndAsksToQuit()
    {
        ShellFixture shell;
        QSignalSpy quit(&shell.window, &TMyWindow::quitRequested);
        EmptyFolder parent;
        const std::string chosen = parent.path() + "/Cats 2024";
        ModalAnswers answers({
            press(QDialogButtonBox::Help),
            press(QDialogButtonBox::Ok), // the help
            [&](QWidget* dialog) {
                // The box starts with the folder in use.
                auto* edit = dialog->findChild<QLineEdit*>(QStringLiteral("folderEdit"));
                QCOMPARE(edit->text().toStdString(), shell.folder());
                edit->setText(QString::fromStdString(chosen));
                clickLater(standardButton(dialog, QDialogButtonBox::Ok));
            },
            press(QDialogButtonBox::Ok), // the confirmation
        });
        shell.trigger(command::changeDataSet);

        QVERIFY(answers.allAnswered());
        QCOMPARE(answers.titles(), texts({"Change Data Source", "Change Data Source Help",
                                          "Change Data Source", "Set Default Directory"}));
        QCOMPARE(shell.profile.read("CurrentDir"), chosen + "/");
        QVERIFY(std::filesystem::is_directory(chosen));
        QCOMPARE(quit.size(), 1);
        QCOMPARE(quit.first().first().toInt(), 1);
    }

    void exitClosesTheWindow()
    {
        ShellFixture shell;
        shell.window.show();
        QVERIFY(QTest::qWaitForWindowExposed(&shell.window));
        shell.trigger(command::exitProgram);
        QVERIFY(!shell.window.isVisible());
    }
};

QTEST_MAIN(MainWindowTest)
#include "MainWindowTest.moc"
