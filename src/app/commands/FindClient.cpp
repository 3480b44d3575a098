#include "app/commands/FindClient.h"

#include "app/CommandIds.h"
#include "app/Session.h"
#include "store/ClientFiles.h"

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
        chooseClient(session, match);
        return match;
    }
}

void chooseClient(Session& session, const FinderMatch& match)
{
    readClientRecord(session.folder, match.code, session.client);
    readStayRecord(session.folder, match.code, session.stay);
}

} // namespace purrlodge
