#include "gui/app/QtHelpQuestions.h"

#include <memory>

#include "app/SettingsLocation.h"
#include "gui/FrontWindow.h"
#include "gui/app/HelpMenuPages.h"
#include "gui/app/TDlgAbout.h"
#include "gui/app/TDlgPictureNote.h"

namespace purrlodge {

QWidget* QtHelpQuestions::parent() const
{
    return frontWindow(mainWindow_);
}

void QtHelpQuestions::showHelpPage(HelpTopic topic)
{
    newHelpMenuPage(topic, parent())->exec();
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
