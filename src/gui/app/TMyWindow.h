#pragma once

#include <functional>
#include <map>
#include <optional>

#include <QList>
#include <QMainWindow>
#include <QTimer>

#include "gui/accounts/QtAccountQuestions.h"
#include "gui/app/QtHelpQuestions.h"
#include "gui/app/QtSetupQuestions.h"
#include "gui/clients/QtClientListQuestions.h"
#include "gui/clients/QtClientQuestions.h"
#include "gui/housekeeping/QtBackupQuestions.h"
#include "gui/housekeeping/QtExportQuestions.h"
#include "gui/housekeeping/QtPeriodReportsQuestions.h"

class QAction;
class QMenu;

namespace purrlodge {

class ClockFace;
class Session;
struct MenuEntry;

// The program's main window: the menu, the tool bar and the clock face. Every
// menu item and tool-bar button carries a command id (QAction::data); the
// command table maps each id to its command in app/commands, run with the
// questions answered by this window's dialogs. A command without an action yet
// is shown greyed.
class TMyWindow : public QMainWindow {
    Q_OBJECT

public:
    explicit TMyWindow(Session& session, QWidget* parent = nullptr);

    // Puts an action behind a command id; its menu items and buttons become usable.
    void setCommand(int commandId, std::function<void()> action);
    // A condition that must also hold for the command to be offered.
    void setEnabler(int commandId, std::function<bool()> isEnabled);
    // Gives the command's menu items a check mark that follows the condition.
    void setChecker(int commandId, std::function<bool()> isChecked);

    // Brings every menu item and button in line with the command table: done
    // each time a menu opens and after each command.
    void updateCommandStates();

    // The menu items and tool-bar buttons of a command.
    [[nodiscard]] QList<QAction*> actionsFor(int commandId) const;

    [[nodiscard]] ClockFace* clockFace() const { return clockFace_; }

signals:
    // A command has registered a new data folder or found the data unusable:
    // the program must end with this exit code.
    void quitRequested(int exitCode);

private:
    struct Command {
        std::function<void()> action;
        std::function<bool()> isEnabled;
        std::function<bool()> isChecked;
    };

    void buildMenu();
    void fillMenu(QMenu* menu, const std::vector<MenuEntry>& entries);
    void buildToolBar();
    QAction* newCommandAction(int commandId, const QString& text, const QString& objectName);
    void buildCommandTable();
    void runCommand(int commandId);
    void onClockTick();
    // Ends the run when a command answered with a quit code.
    void quitWith(std::optional<int> quitCode);

    Session& session_;
    QtSetupQuestions setupQuestions_;
    QtClientQuestions clientQuestions_;
    QtAccountQuestions accountQuestions_;
    QtBackupQuestions backupQuestions_;
    QtExportQuestions exportQuestions_;
    QtPeriodReportsQuestions periodReportsQuestions_;
    QtHelpQuestions helpQuestions_;
    QtClientListQuestions clientListQuestions_;
    ClockFace* clockFace_;
    QTimer* clockTimer_;
    std::map<int, Command> commands_;
    std::multimap<int, QAction*> actions_;
};

} // namespace purrlodge
