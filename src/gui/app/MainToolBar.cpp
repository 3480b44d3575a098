#include "gui/app/MainToolBar.h"

#include "app/CommandIds.h"

namespace purrlodge {

namespace {

ToolBarEntry gap(int width)
{
    return {width, 0, 0, {}, {}, {}};
}

ToolBarEntry button(int commandId, int bitmap, const char* icon, const char* toolTip,
                    const char* objectName)
{
    return {0,
            commandId,
            bitmap,
            QStringLiteral(":/icons/") + QString::fromLatin1(icon),
            QString::fromLatin1(toolTip),
            QString::fromLatin1(objectName)};
}

} // namespace

std::vector<ToolBarEntry> mainToolBarLayout()
{
    using namespace command;
    return {
        gap(20),
        button(seeClientDetails, 1, "see-client-details", "See Client Details",
               "seeClientDetailsButton"),
        button(editClientDetails, 2, "edit-client-details", "Edit Client Details",
               "editClientDetailsButton"),
        button(newClient, 3, "new-client", "New Client", "newClientButton"),
        button(deleteClient, 4, "delete-client", "Delete Client", "deleteClientButton"),
        button(listAllClients, 6, "list-all-clients", "List All Clients", "listAllClientsButton"),
        gap(3),
        button(makeArrivalSheet, 5, "make-arrival-sheet", "Make Arrival Sheet",
               "makeArrivalSheetButton"),
        button(issueAccount, 8, "issue-account", "Issue Account", "issueAccountButton"),
        button(globalSearch, 11, "global-search", "Global Search", "globalSearchButton"),
        button(viewPastAccounts, 10, "view-past-accounts", "View Past Accounts",
               "viewPastAccountsButton"),
        button(findNumberedAccount, 26, "find-numbered-account", "Find Numbered Account",
               "findNumberedAccountButton"),
        button(viewPastClients, 27, "view-past-clients", "View Past Clients",
               "viewPastClientsButton"),
        button(makeNotes, 12, "make-notes", "Make Notes", "makeNotesButton"),
        button(setAutoMemo, 36, "set-auto-memo", "Set AutoMemo", "setAutoMemoButton"),
        gap(10),
        button(runPendingPrintout, 7, "print", "Print the waiting printout", "printButton"),
        gap(60),
    };
}

} // namespace purrlodge
