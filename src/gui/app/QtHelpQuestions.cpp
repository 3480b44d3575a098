#include "gui/app/QtHelpQuestions.h"

#include <memory>

#include "app/SettingsLocation.h"
#include "gui/FrontWindow.h"
#include "gui/app/HelpMenuPages.h"
#include "gui/app/TDlg20.h"
#include "gui/app/TDlgAbout.h"
#include "gui/app/TDlgPictureNote.h"

namespace purrlodge {

QWidget* QtHelpQuestions::parent() const
{
    return frontWindow(mainWindow_);
}

void QtHelpQuestions::showHelpPage(HelpTopic topic)
{
    std::unique_ptr<QDialog> page;
    switch (topic) {
    case HelpTopic::setupHelp:
        page = newSetupHelpPage(parent());
        break;
    case HelpTopic::colourPrinting:
        page = newColourPrintingHelpPage(parent());
        break;
    case HelpTopic::deletingAClient:
        page = newDeletingClientHelpPage(parent());
        break;
    case HelpTopic::changeDataDirectory:
        page = std::make_unique<TDlg20>(parent());
        break;
    }
    if (page)
        page->exec();
}

void QtHelpQuestions::showEmergencyHelp(const EmergencyFacts& facts)
{
    const QString settingsFile = QString::fromStdU16String(settingsFilePath().u16string());
    newEmergencyHelpPage(facts, settingsFile, parent())->exec();
}

void QtHelpQuestions::showPictureNote(const PictureNote& note)
{
    TDlgPictureNote dialog(note, parent());
    dialog.exec();
}

void QtHelpQuestions::showAbout()
{
    TDlgAbout dialog(parent());
    dialog.exec();
}

} // namespace purrlodge
