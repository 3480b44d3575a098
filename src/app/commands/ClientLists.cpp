#include "app/commands/ClientLists.h"

#include "app/Session.h"
#include "housekeeping/ListedClients.h"
#include "print/PrintJobRunner.h"
#include "print/PrinterJobs.h"
#include "print/RateCardPage.h"
#include "store/TextHelpers.h"

namespace purrlodge {

namespace {

// The spooler's name of each list's pages.
std::string jobTitle(ClientListChoice choice)
{
    switch (choice) {
    case ClientListChoice::People:
        return "people list";
    case ClientListChoice::Cats:
        return "cat list";
    case ClientListChoice::Full:
        return "Full Client List";
    case ClientListChoice::Active:
    case ClientListChoice::Inactive:
        break;
    }
    return "Client Listing";
}

ListPages pagesOf(Session& session, const std::vector<ListedClient>& clients,
                  ClientListChoice choice)
{
    const ClientListContext context{trim(session.establishment.name.str()), session.ports.clock};
    switch (choice) {
    case ClientListChoice::People:
        return peopleListPages(context, clients);
    case ClientListChoice::Cats:
        return catListPages(context, clients);
    case ClientListChoice::Full:
        return fullClientListPages(context, clients);
    case ClientListChoice::Active:
        return clientListingPages(context, clients, ClientStatus::Active);
    case ClientListChoice::Inactive:
        break;
    }
    return clientListingPages(context, clients, ClientStatus::Inactive);
}

} // namespace

std::string_view clientListName(ClientListChoice choice)
{
    switch (choice) {
    case ClientListChoice::People:
        return "People list";
    case ClientListChoice::Cats:
        return "Cat list";
    case ClientListChoice::Full:
        return "Full client list";
    case ClientListChoice::Active:
        return "Active clients";
    case ClientListChoice::Inactive:
        break;
    }
    return "Inactive clients";
}

ListPages clientListPages(Session& session, ClientListChoice choice)
{
    return pagesOf(session, listedCurrentClients(session.folder, session.index), choice);
}

bool printClientListPages(Session& session, ClientListChoice choice, const ListPages& pages)
{
    PrinterJobs printer(session.ports.printer);
    CommandJobs jobs(printer, session.printDialog);
    const std::string title = jobTitle(choice);
    bool printed = true;
    for (int page = 0; printed && page < pages.pageCount(); ++page) {
        pages.fillPage(session.printBuffer, page);
        printed = jobs.run(title, session.printBuffer);
    }
    tellWherePrintoutsWent(session.ports.printer, session.ports.ui);
    return printed;
}

void listAllClients(Session& session, ClientListQuestions& questions)
{
    // Read once: the lists switch on screen without reading every record
    // again.
    const std::vector<ListedClient> clients = listedCurrentClients(session.folder, session.index);
    questions.showClientList(
        ClientListChoice::People,
        [&](ClientListChoice choice) { return pagesOf(session, clients, choice); },
        [&](ClientListChoice choice) {
            printClientListPages(session, choice, pagesOf(session, clients, choice));
        });
}

void printClientLists(Session& session, ClientListQuestions& questions)
{
    const std::optional<ClientListChoice> choice =
        questions.chooseClientList(ClientListChoice::People);
    if (!choice)
        return;
    printClientListPages(session, *choice, clientListPages(session, *choice));
}

void printCurrentRates(Session& session)
{
    fillRateCard(session.printBuffer, session.establishment, session.rates, session.exchangeRate);
    PrinterJobs jobs(session.ports.printer);
    runPrintJob(jobs, "Rates", session.printBuffer, session.printDialog);
    tellWherePrintoutsWent(session.ports.printer, session.ports.ui);
}

} // namespace purrlodge
