#include "gui/app/HelpMenuPages.h"

#include "app/commands/HelpPages.h"
#include "gui/Text1252.h"
#include "gui/app/TDlg20.h"

namespace purrlodge {

namespace {

// A plain page of the Help menu: its object name, title, text and width in
// dialog units.
struct PlainHelpPage {
    const char16_t* objectName;
    const char16_t* title;
    const char16_t* text;
    int width;
};

PlainHelpPage plainHelpPage(HelpTopic topic)
{
    switch (topic) {
    case HelpTopic::setupHelp:
        return {u"setupHelpDialog", u"Setup Help",
                u"Before you take your first booking, tell Purrlodge about your cattery. "
                u"Everything is on the Setup menu, and can be changed again at any time.\n\n"
                u"Cattery Details: your cattery's name, address and telephone, as printed on "
                u"accounts, and how long a vaccination stays valid.\n"
                u"Set Rates: what you charge a day for one, two or more cats, and your currency.\n"
                u"Euro Exchange Rate: the rate used to show a Sterling account in Euros as well "
                u"(offered only when your rates are in Sterling).\n"
                u"Set Standard Extra: a charge you often add to accounts, such as a bath.\n"
                u"Set Account Number: the number the next account starts from.\n"
                u"SetAccount Note: one line printed at the bottom of every account.\n"
                u"Set Auto Memo: a reminder about one client, shown when you make an arrival "
                u"sheet or an account for that client.\n"
                u"Set Printing Options and Print Dialog on/off: colour on printouts, and whether "
                u"Purrlodge asks which printer to use.\n"
                u"Setup Prnter: choose the printer and the paper.\n"
                u"Show Pic-Note indicator and Digital Clock: how the main window looks.\n"
                u"Change Data Set: use another data folder (see Help | Help on: | Change the Data "
                u"Directory).\n\n"
                u"Then enter your clients with Tasks | New Client. Keep a backup: Help | Backup "
                u"Advice tells you how.",
                76};
    case HelpTopic::colourPrinting:
        return {u"colourPrintingHelpDialog", u"Colour Printing",
                u"With a colour printer, Purrlodge can print your cattery's name and a few "
                u"important lines in colour. With a black-and-white printer everything comes out "
                u"in black, whatever you choose.\n\n"
                u"Choose Setup | Set Printing Options. Tick each printout that should be in colour "
                u"(accounts, arrival sheets, lists and so on) and pick the colour for your "
                u"cattery's name, or let Purrlodge pick a different colour each time. Untick them "
                u"all to save colour ink.\n\n"
                u"Setup | Print Dialog on/off decides whether Purrlodge asks which printer to use "
                u"before it prints; Setup | Setup Prnter chooses the printer and the paper.\n\n"
                u"When no printer is installed, every printout is saved as a PDF file in the "
                u"\"Purrlodge Printouts\" folder of your Documents, in colour, and Purrlodge tells "
                u"you where it is.",
                60};
    case HelpTopic::deletingAClient:
        return {
            u"deletingClientHelpDialog", u"Deleting a Client",
            u"Choose Tasks | Delete Client (or its tool-bar button, a person with a red cross), "
            u"find the client by name, and choose one of two ways:\n\n"
            u"Transfer this client to the 'Hidden Clients' list: the client no longer appears "
            u"among your clients, but nothing is thrown away. This is the safe choice for a "
            u"client who has stopped coming. Tasks | View Past Clients lists them, and from "
            u"there you can look at a client, bring one back with Restore Client, or remove "
            u"one for good later.\n\n"
            u"Permanently remove all this client's files: the client's record, cats, accounts, "
            u"notes and memo are deleted. This cannot be undone, except by restoring a backup "
            u"made before the deletion (and that brings back the whole data set as it was "
            u"then).\n\n"
            u"If you are not sure, transfer the client: you can always remove them later.",
            60};
    case HelpTopic::changeDataDirectory:
        break;
    }
    return {};
}

} // namespace

std::unique_ptr<QDialog> newHelpMenuPage(HelpTopic topic, QWidget* parent)
{
    if (topic == HelpTopic::changeDataDirectory)
        return std::make_unique<TDlg20>(parent);
    const PlainHelpPage page = plainHelpPage(topic);
    return std::make_unique<HelpPage>(QString::fromUtf16(page.objectName),
                                      QString::fromUtf16(page.title), QString::fromUtf16(page.text),
                                      page.width, parent);
}

std::unique_ptr<HelpPage> newEmergencyHelpPage(const EmergencyFacts& facts,
                                               const QString& settingsFile, QWidget* parent)
{
    const QString dataFolder = fromWindows1252(facts.dataFolder);
    const QString backupFolder =
        facts.backupFolder.empty()
            ? QStringLiteral("none yet (Help | Backup Advice tells you how to make one)")
            : fromWindows1252(facts.backupFolder);
    return std::make_unique<HelpPage>(
        QStringLiteral("emergencyHelpDialog"), QStringLiteral("Emergency!"),
        QStringLiteral(
            "Don't panic, and don't type over anything yet: your records are files on this "
            "computer, and they are rarely lost for good.\n\n"
            "Where your files are\n"
            "Your data folder: %1\n"
            "Your backup folder: %2\n"
            "Purrlodge's settings: %3\n"
            "Good-Housekeeping | Where's My Stuff? shows the folders too.\n\n"
            "If your clients seem to have vanished\n"
            "Look at the title bar: it names the data folder in use. If it is not yours, choose "
            "Setup | Change Data Set and give your own folder back to Purrlodge.\n\n"
            "If Purrlodge says the client list was damaged\n"
            "It has repaired the list and kept the damaged file as FIDEX.BAD in the data "
            "folder. Keep that file: whoever helps you may need it. Check your clients; if "
            "any are missing, restore your latest backup.\n\n"
            "If the data looks wrong\n"
            "Restore your latest backup with Good-Housekeeping | Restore Data From Backup. It "
            "brings everything back as it was when the backup was made; anything entered "
            "since then must be typed in again.\n\n"
            "If Purrlodge will not start\n"
            "Write down the message it shows. Your records are still in the data folder, so "
            "delete nothing there. Whoever helps you can start Purrlodge with -fdc to choose "
            "the data folder afresh, or copy the backup folder's files back into the data "
            "folder.\n\n"
            "Whom to call\n"
            "The person who looks after your computer, or whoever supplied Purrlodge. Tell "
            "them what you did and what the message said, and do not delete anything from "
            "the data folder in the meantime.")
            .arg(dataFolder, backupFolder, settingsFile),
        76, parent);
}

} // namespace purrlodge
