#include "gui/clients/ClientSearchCommands.h"

#include <optional>

#include "app/CommandIds.h"
#include "app/Session.h"
#include "clients/ClientDetails.h"
#include "clients/GlobalSearch.h"
#include "clients/OtherCatsList.h"
#include "gui/app/TMyWindow.h"
#include "gui/clients/ClientCommands.h"
#include "gui/clients/ClientFinderDialogs.h"
#include "gui/clients/TDlg12.h"
#include "gui/clients/TDlg37.h"
#include "gui/clients/TDlg38.h"
#include "gui/clients/TDlg52.h"
#include "store/ClientFiles.h"

namespace purrlodge {

namespace {

void seeClientDetails(QWidget* parent, Session& session)
{
    const std::optional<FinderMatch> match = findClient(parent, session, command::seeClientDetails);
    if (match)
        showClientDetails(parent, session, session.client, match->code);
}

void editClientDetails(QWidget* parent, Session& session)
{
    if (askForClient(parent, session, command::editClientDetails))
        editClient(parent, session);
}

// The details of a result line's client, read afresh: looking at a result
// does not change the current client.
void showResultDetails(QWidget* parent, Session& session, const std::string& line)
{
    const std::string code = codeOfResultLine(line);
    ClientRecord client{};
    readClientRecord(session.folder, code, client);
    showClientDetails(parent, session, client, code);
}

void runGlobalSearch(QWidget* parent, Session& session)
{
    TDlg37 search(parent);
    if (search.exec() != QDialog::Accepted)
        return;
    const GlobalSearchResult result = globalSearch(session.folder, session.index, search.request());
    TDlg38 results(
        result,
        [&session](QWidget* dialog, const std::string& line) {
            showResultDetails(dialog, session, line);
        },
        parent);
    results.exec();
}

} // namespace

void showClientDetails(QWidget* parent, Session& session, const ClientRecord& client,
                       const std::string& code)
{
    const ClientDetailsListing listing = clientDetailsListing(
        session.folder, client, code, session.currentYear, session.ports.clock);
    TDlg12 details(
        listing,
        [&session, &client, &code](QWidget* dialog, OtherCatsMode mode) {
            TDlg52 otherCats(otherCatsListing(session.folder, code, client, mode), dialog);
            otherCats.exec();
        },
        parent);
    details.exec();
}

void registerClientSearchCommands(TMyWindow& window, Session& session)
{
    QWidget* parent = &window;
    window.setCommand(command::seeClientDetails,
                      [parent, &session] { seeClientDetails(parent, session); });
    window.setCommand(command::editClientDetails,
                      [parent, &session] { editClientDetails(parent, session); });
    window.setCommand(command::globalSearch,
                      [parent, &session] { runGlobalSearch(parent, session); });
}

} // namespace purrlodge
