#include "gui/app/TMyWindow.h"

#include <optional>
#include <string>

#include <QAction>
#include <QIcon>
#include <QMenu>
#include <QMenuBar>
#include <QToolBar>

#include "accounts/ExchangeRateSetup.h"
#include "app/CommandIds.h"
#include "app/Session.h"
#include "app/commands/ArrivalSheet.h"
#include "app/commands/BackupAndRestore.h"
#include "app/commands/ClientLists.h"
#include "app/commands/ClientNotes.h"
#include "app/commands/ClientRemoval.h"
#include "app/commands/Exports.h"
#include "app/commands/HelpPages.h"
#include "app/commands/IssueAccount.h"
#include "app/commands/PastAccounts.h"
#include "app/commands/PeriodReports.h"
#include "app/commands/Printing.h"
#include "app/commands/ShellToggles.h"
#include "gui/app/ClockFace.h"
#include "gui/app/MainMenu.h"
#include "gui/app/MainToolBar.h"

namespace purrlodge {

namespace {

// The clock is repainted once a minute.
constexpr int clockPeriodMs = 60000;

QIcon toolBarIcon(const QString& resource)
{
    QIcon icon;
    icon.addFile(resource + QStringLiteral("-24.png"), QSize(24, 24));
    icon.addFile(resource + QStringLiteral("-48.png"), QSize(48, 48));
    return icon;
}

} // namespace

TMyWindow::TMyWindow(Session& session, QWidget* parent)
    : QMainWindow(parent), session_(session), setupQuestions_(this), clientQuestions_(this),
      accountQuestions_(this), backupQuestions_(this), exportQuestions_(this),
      periodReportsQuestions_(this), helpQuestions_(this), clientListQuestions_(this),
      clockFace_(new ClockFace(session, this)), clockTimer_(new QTimer(this))
{
    setObjectName(QStringLiteral("mainWindow"));
    setCentralWidget(clockFace_);
    // The tool bar stays where it is: no menu to hide it.
    setContextMenuPolicy(Qt::NoContextMenu);

    buildMenu();
    buildToolBar();
    buildCommandTable();
    updateCommandStates();

    clockTimer_->setObjectName(QStringLiteral("clockTimer"));
    connect(clockTimer_, &QTimer::timeout, this, &TMyWindow::onClockTick);
    clockTimer_->start(clockPeriodMs);

    resize(760, 560);
}

void TMyWindow::buildMenu()
{
    for (const MenuEntry& popup : mainMenuLayout()) {
        QMenu* menu = menuBar()->addMenu(popup.text);
        menu->setObjectName(popup.objectName);
        fillMenu(menu, popup.entries);
    }
}

void TMyWindow::fillMenu(QMenu* menu, const std::vector<MenuEntry>& entries)
{
    // Two separators in a row are kept, as the menu is laid out.
    menu->setSeparatorsCollapsible(false);
    connect(menu, &QMenu::aboutToShow, this, &TMyWindow::updateCommandStates);
    for (const MenuEntry& entry : entries) {
        switch (entry.kind) {
        case MenuEntry::Kind::Separator:
            menu->addSeparator();
            break;
        case MenuEntry::Kind::Command:
            menu->addAction(newCommandAction(entry.commandId, entry.text, entry.objectName));
            break;
        case MenuEntry::Kind::Popup: {
            QMenu* sub = menu->addMenu(entry.text);
            sub->setObjectName(entry.objectName);
            fillMenu(sub, entry.entries);
            break;
        }
        }
    }
}

void TMyWindow::buildToolBar()
{
    QToolBar* bar = addToolBar(QStringLiteral("Tasks"));
    bar->setObjectName(QStringLiteral("mainToolBar"));
    bar->setMovable(false);
    bar->setFloatable(false);
    bar->setIconSize(QSize(24, 24));
    for (const ToolBarEntry& entry : mainToolBarLayout()) {
        if (entry.separatorWidth > 0) {
            auto* gap = new QWidget(bar);
            gap->setObjectName(QStringLiteral("toolBarGap%1").arg(entry.separatorWidth));
            gap->setFixedWidth(entry.separatorWidth);
            bar->addWidget(gap);
            continue;
        }
        QAction* action = newCommandAction(entry.commandId, entry.toolTip, entry.objectName);
        action->setIcon(toolBarIcon(entry.icon));
        action->setToolTip(entry.toolTip);
        bar->addAction(action);
    }
}

QAction* TMyWindow::newCommandAction(int commandId, const QString& text, const QString& objectName)
{
    auto* action = new QAction(text, this);
    action->setObjectName(objectName);
    action->setData(commandId);
    connect(action, &QAction::triggered, this, [this, commandId] { runCommand(commandId); });
    actions_.emplace(commandId, action);
    return action;
}

void TMyWindow::buildCommandTable()
{
    Session& session = session_;

    // Setup
    setCommand(command::catteryDetails,
               [this] { quitWith(editCatteryDetails(session_, setupQuestions_)); });
    setCommand(command::setRates, [this] { setRates(session_, setupQuestions_); });
    setCommand(command::euroExchangeRate,
               [this] { setEuroExchangeRate(session_, setupQuestions_); });
    // Euros come into play only when the rates are in Sterling.
    setEnabler(command::euroExchangeRate,
               [&session] { return euroExchangeRateEnabled(session.rates); });
    setCommand(command::setStandardExtra, [this] { setStandardExtra(session_, setupQuestions_); });
    // Setup's "Set Auto Memo" and Tasks' "Set AutoMemo" are one command.
    setCommand(command::setAutoMemo, [this] { setAutoMemo(session_, clientQuestions_); });
    setCommand(command::setAccountNote, [this] { setAccountNote(session_, clientQuestions_); });
    setCommand(command::setAccountNumber, [this] { setAccountNumber(session_, setupQuestions_); });
    setCommand(command::changeDataSet,
               [this] { quitWith(changeDataSet(session_, setupQuestions_)); });
    setCommand(command::digitalClock, [this] {
        toggleDigitalClock(session_);
        clockFace_->update();
    });
    setChecker(command::digitalClock, [&session] { return session.shell.digitalClock; });
    setCommand(command::showPicNoteIndicator, [this] {
        togglePictureNoteIndicator(session_);
        clockFace_->update();
    });
    setChecker(command::showPicNoteIndicator,
               [&session] { return session.shell.pictureNoteIndicator; });
    setCommand(command::printDialogOnOff,
               [this] { setPrintDialogOption(session_, setupQuestions_); });
    setCommand(command::setPrintingOptions,
               [this] { setPrintingOptions(session_, setupQuestions_); });
    setCommand(command::setupPrinter, [this] { setupPrinter(session_); });
    // The blank job runs only once a job has been printed through the dialog.
    setCommand(command::runPendingPrintout, [this] { runPendingPrintout(session_); });
    setEnabler(command::runPendingPrintout,
               [&session] { return session.printDialog.printedWithDialog; });

    // Tasks
    setCommand(command::seeClientDetails, [this] { seeClientDetails(session_, clientQuestions_); });
    clientQuestions_.setDetailsPrinter(
        [this](const ClientDetailsListing& listing) { printClientDetails(session_, listing); });
    setCommand(command::editClientDetails,
               [this] { editClientDetails(session_, clientQuestions_); });
    setCommand(command::newClient, [this] { newClient(session_, clientQuestions_); });
    setCommand(command::deleteClient, [this] { deleteClient(session_, clientQuestions_); });
    setCommand(command::globalSearch, [this] { globalSearch(session_, clientQuestions_); });
    setCommand(command::makeArrivalSheet,
               [this] { makeArrivalSheet(session_, accountQuestions_); });
    setCommand(command::issueAccount, [this] { issueAccount(session_, accountQuestions_); });
    accountQuestions_.setSpecialNotesEditor([this] { editNoteBook(session_, clientQuestions_); });
    setCommand(command::viewPastAccounts,
               [this] { viewPastAccounts(session_, accountQuestions_); });
    setCommand(command::findNumberedAccount,
               [this] { findNumberedAccount(session_, accountQuestions_); });
    setCommand(command::viewPastClients, [this] { viewPastClients(session_, clientQuestions_); });
    setCommand(command::makeNotes, [this] { makeNotes(session_, clientQuestions_); });
    setCommand(command::exitProgram, [this] { close(); });

    // Good-Housekeeping
    setCommand(command::backupMyData, [this] { backupMyData(session_, backupQuestions_); });
    // A restore reads the data set afresh with no client current: the clock
    // face shows it, and the commands follow when the command ends.
    setCommand(command::restoreDataFromBackup, [this] {
        restoreDataFromBackup(session_, backupQuestions_);
        clockFace_->update();
    });
    setCommand(command::showLastBackup, [this] { showLastBackup(session_, backupQuestions_); });
    setCommand(command::wheresMyStuff, [this] { wheresMyStuff(session_, backupQuestions_); });
    setCommand(command::remindMe, [this] { toggleBackupReminder(session_); });
    setChecker(command::remindMe, [&session] { return session.shell.backupReminder; });
    setCommand(command::fileClientAddresses,
               [this] { fileClientAddresses(session_, exportQuestions_); });
    setCommand(command::fileClientEmails, [this] { fileClientEmails(session_, exportQuestions_); });

    // Special Operations
    setCommand(command::countCatNames, [this] { countCatNames(session_, exportQuestions_); });
    setCommand(command::markInactiveClients,
               [this] { markInactiveClients(session_, exportQuestions_); });
    setCommand(command::listUniqueNames, [this] { listUniqueNames(session_, exportQuestions_); });
    setCommand(command::clientUsage,
               [this] { showClientUsage(session_, periodReportsQuestions_); });

    // The client lists and the rate card
    setCommand(command::listAllClients, [this] { listAllClients(session_, clientListQuestions_); });
    setCommand(command::clientLists, [this] { printClientLists(session_, clientListQuestions_); });
    setCommand(command::printCurrentRates, [this] { printCurrentRates(session_); });

    // Print Jobs
    setCommand(command::admissionRegister,
               [this] { printAdmissionRegister(session_, accountQuestions_); });

    // Help
    setCommand(command::backupAdvice, [this] { backupAdvice(session_, backupQuestions_); });
    setCommand(command::setupHelp, [this] { showHelpPage(helpQuestions_, HelpTopic::setupHelp); });
    setCommand(command::seePictureNotes, [this] { seePictureNotes(session_, helpQuestions_); });
    setEnabler(command::seePictureNotes, [&session] { return session.shell.pictureHasNotes(); });
    setCommand(command::colourPrintingHelp,
               [this] { showHelpPage(helpQuestions_, HelpTopic::colourPrinting); });
    setCommand(command::deletingAClientHelp,
               [this] { showHelpPage(helpQuestions_, HelpTopic::deletingAClient); });
    setCommand(command::changeDataDirectoryHelp,
               [this] { showHelpPage(helpQuestions_, HelpTopic::changeDataDirectory); });
    setCommand(command::emergencyHelp, [this] { emergencyHelp(session_, helpQuestions_); });
    setCommand(command::about, [this] { about(helpQuestions_); });
}

void TMyWindow::setCommand(int commandId, std::function<void()> action)
{
    commands_[commandId].action = std::move(action);
    updateCommandStates();
}

void TMyWindow::setEnabler(int commandId, std::function<bool()> isEnabled)
{
    commands_[commandId].isEnabled = std::move(isEnabled);
    updateCommandStates();
}

void TMyWindow::setChecker(int commandId, std::function<bool()> isChecked)
{
    commands_[commandId].isChecked = std::move(isChecked);
    for (QAction* action : actionsFor(commandId))
        action->setCheckable(true);
    updateCommandStates();
}

void TMyWindow::updateCommandStates()
{
    for (const auto& [commandId, action] : actions_) {
        const auto found = commands_.find(commandId);
        if (found == commands_.end() || !found->second.action) {
            action->setEnabled(false);
            continue;
        }
        const Command& command = found->second;
        action->setEnabled(!command.isEnabled || command.isEnabled());
        if (command.isChecked)
            action->setChecked(command.isChecked());
    }
}

QList<QAction*> TMyWindow::actionsFor(int commandId) const
{
    QList<QAction*> result;
    const auto [first, last] = actions_.equal_range(commandId);
    for (auto it = first; it != last; ++it)
        result.append(it->second);
    return result;
}

void TMyWindow::runCommand(int commandId)
{
    const auto found = commands_.find(commandId);
    if (found != commands_.end() && found->second.action)
        found->second.action();
    updateCommandStates();
}

void TMyWindow::onClockTick()
{
    clockTimer_->stop();
    clockFace_->update();
    clockTimer_->start(clockPeriodMs);
}

void TMyWindow::quitWith(std::optional<int> quitCode)
{
    if (quitCode)
        emit quitRequested(*quitCode);
}

} // namespace purrlodge
