#include "app/commands/FindClient.h"

#include "app/CommandIds.h"
#include "app/Session.h"
#include "store/CatSlots.h"
#include "store/ClientCode.h"
#include "store/ClientFiles.h"
#include "store/IndexOperations.h"

namespace purrlodge {

FinderOptions finderOptionsFor(int commandId)
{
    FinderOptions options;
    options.catOnly = commandId == command::makeNotes;
    options.anyFirstCharacter = commandId == command::editClientDetails;
    return options;
}

std::optional<FinderMatch> findClient(Session& session, FinderQuestions& questions, int commandId)
{
    const FinderOptions options = finderOptionsFor(commandId);
    FinderEntry entry{{}, options.preselected()};
    for (;;) {
        const std::optional<FinderEntry> typed = questions.askClientName(options, entry);
        if (!typed)
            return std::nullopt;
        entry = *typed;
        const FinderNameCheck check =
            checkFinderName(entry.name, options.anyFirstCharacter, session.diagnostics);
        if (check.verdict == FinderNameVerdict::DiagnosticsSwitched)
            return std::nullopt;
        if (check.verdict == FinderNameVerdict::AskAgain) {
            if (check.message)
                session.ports.ui.showMessage(*check.message);
            continue;
        }

        const FinderResult result =
            findClients(session.folder, session.index, entry.search, entry.name);
        if (result.tooManyMatches)
            session.ports.ui.showMessage(*result.tooManyMatches);
        const std::optional<int> chosen = questions.chooseMatch(result);
        if (!chosen || *chosen < 0 || *chosen >= static_cast<int>(result.matches.size()))
            return std::nullopt;
        const FinderMatch& match = result.matches[static_cast<std::size_t>(*chosen)];
        if (!chooseClient(session, match))
            return std::nullopt;
        return match;
    }
}

bool readListedClient(Session& session, std::string_view code, ClientRecord& client)
{
    const int entry = findCode(session.index, code);
    const std::string where = entry > 0
                                  ? " (" + session.index.entries[entry].key.str() + ", entry " +
                                        std::to_string(entry) + " of the client list)"
                                  : std::string();
    if (!isSafeClientCode(code)) {
        clearClientRecord(client);
        session.ports.ui.showMessage(
            {"The client list names this client" + where + " by the code \"" + std::string(code) +
                 "\", which cannot name a file in the data folder.\n\nThe client is listed, "
                 "but cannot be opened or changed.",
             "Data Error", MessageIcon::Exclamation});
        return false;
    }
    if (!readClientRecord(session.folder, code, client)) {
        session.ports.ui.showMessage(
            {"The client file " +
                 session.folder.fileName(clientFileName(code, extension::clientRecord)) + where +
                 " is missing.\n\nThe client cannot be opened; nothing has been changed.",
             "Data Error", MessageIcon::Exclamation});
        return false;
    }
    return true;
}

bool chooseClient(Session& session, const FinderMatch& match)
{
    ClientRecord client;
    if (!readListedClient(session, match.code, client))
        return false;
    session.client = client;
    session.clientCode = match.code;
    readStayRecord(session.folder, match.code, session.stay);
    return true;
}

} // namespace purrlodge
