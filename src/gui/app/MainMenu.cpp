#include "gui/app/MainMenu.h"

#include "app/CommandIds.h"

namespace purrlodge {

namespace {

MenuEntry item(int commandId, const char* text, const char* objectName)
{
    return {MenuEntry::Kind::Command,
            commandId,
            QString::fromLatin1(text),
            QString::fromLatin1(objectName),
            {}};
}

MenuEntry separator()
{
    return {};
}

MenuEntry popup(const char* text, const char* objectName, std::vector<MenuEntry> entries)
{
    return {MenuEntry::Kind::Popup, 0, QString::fromLatin1(text), QString::fromLatin1(objectName),
            std::move(entries)};
}

} // namespace

std::vector<MenuEntry> mainMenuLayout()
{
    using namespace command;
    return {
        popup(
            "&Setup", "setupMenu",
            {
                item(setAccountNumber, "&Set Account Number", "setAccountNumberAction"),
                item(setPrintingOptions, "Set Printing &Options", "setPrintingOptionsAction"),
                item(catteryDetails, "&Cattery Details", "catteryDetailsAction"),
                item(printDialogOnOff, "&Print Dialog on/off", "printDialogOnOffAction"),
                item(euroExchangeRate, "&Euro Exchange Rate", "euroExchangeRateAction"),
                item(setAutoMemo, "Set &Auto Memo", "setAutoMemoAction"),
                item(setAccountNote, "SetAccount Note", "setAccountNoteAction"),
                item(setStandardExtra, "Set Standard E&xtra", "setStandardExtraAction"),
                item(setRates, "Set &Rates", "setRatesAction"),
                item(showPicNoteIndicator, "Show Pic-Note indicator", "showPicNoteIndicatorAction"),
                item(digitalClock, "Digi&tal Clock", "digitalClockAction"),
                separator(),
                item(setupPrinter, "S&etup Prnter", "setupPrinterAction"),
                separator(),
                item(changeDataSet, "Change &Data Set", "changeDataSetAction"),
            }),
        popup("&Tasks", "tasksMenu",
              {
                  item(seeClientDetails, "&See Client Details", "seeClientDetailsAction"),
                  item(editClientDetails, "&Edit Client Details", "editClientDetailsAction"),
                  item(newClient, "&New Client", "newClientAction"),
                  item(deleteClient, "&Delete Client", "deleteClientAction"),
                  item(listAllClients, "&List All Clients", "listAllClientsAction"),
                  item(makeArrivalSheet, "&Make Arrival Sheet", "makeArrivalSheetAction"),
                  item(issueAccount, "&Issue Account", "issueAccountAction"),
                  item(findNumberedAccount, "Find Numbered Account", "findNumberedAccountAction"),
                  item(globalSearch, "&Global Search", "globalSearchAction"),
                  item(viewPastAccounts, "&View Past Accounts", "viewPastAccountsAction"),
                  item(viewPastClients, "Vie&w Past Clients", "viewPastClientsAction"),
                  item(makeNotes, "&Make Notes", "makeNotesAction"),
                  item(setAutoMemo, "Set AutoMemo", "setAutoMemoTasksAction"),
                  separator(),
                  item(exitProgram, "E&xit", "exitAction"),
              }),
        popup("&Good-Housekeeping", "goodHousekeepingMenu",
              {
                  item(backupMyData, "&Backup My Data", "backupMyDataAction"),
                  item(restoreDataFromBackup, "Restore Data &From Backup",
                       "restoreDataFromBackupAction"),
                  separator(),
                  item(showLastBackup, "&Show Last Backup", "showLastBackupAction"),
                  item(remindMe, "&Remind Me!", "remindMeAction"),
                  item(wheresMyStuff, "&Where's My Stuff?", "wheresMyStuffAction"),
                  separator(),
                  item(fileClientEmails, "File Client &Emails", "fileClientEmailsAction"),
                  item(fileClientAddresses, "&File Client Addresses", "fileClientAddressesAction"),
              }),
        popup("Special &Operations", "specialOperationsMenu",
              {
                  item(countCatNames, "Count Cat &Names", "countCatNamesAction"),
                  item(markInactiveClients, "Mark Inactive Clients", "markInactiveClientsAction"),
                  item(listUniqueNames, "List Unique Names", "listUniqueNamesAction"),
                  item(clientUsage, "&Client Usage", "clientUsageAction"),
              }),
        popup("&Print Jobs", "printJobsMenu",
              {
                  item(printCurrentRates, "Print Current rates", "printCurrentRatesAction"),
                  separator(),
                  item(clientLists, "Client Lists", "clientListsAction"),
                  item(admissionRegister, "Admission Register", "admissionRegisterAction"),
              }),
        popup(
            "&Help", "helpMenu",
            {
                item(setupHelp, "&Setup Help", "setupHelpAction"),
                item(backupAdvice, "&Backup Advice", "backupAdviceAction"),
                separator(),
                item(seePictureNotes, "See Picture Notes", "seePictureNotesAction"),
                separator(),
                separator(),
                popup("&Help on:", "helpOnMenu",
                      {
                          item(colourPrintingHelp, "Colour &Printing", "colourPrintingHelpAction"),
                          item(deletingAClientHelp, "&Deleting a Client",
                               "deletingAClientHelpAction"),
                          item(changeDataDirectoryHelp, "&Change the Data Directory",
                               "changeDataDirectoryHelpAction"),
                          item(emergencyHelp, "&Emergency!", "emergencyHelpAction"),
                      }),
                separator(),
                item(about, "&About", "aboutAction"),
            }),
    };
}

} // namespace purrlodge
