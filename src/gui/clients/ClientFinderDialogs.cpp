#include "gui/clients/ClientFinderDialogs.h"

#include "app/Session.h"
#include "gui/clients/TDlg2.h"
#include "gui/clients/TDlg4.h"

namespace purrlodge {

std::optional<FinderMatch> findClient(QWidget* parent, Session& session, int commandId)
{
    const FinderOptions options = finderOptionsFor(commandId);
    // One name entry, shown again as typed after a refused name.
    TDlg4 nameEntry(options, parent);
    for (;;) {
        if (nameEntry.exec() != QDialog::Accepted)
            return std::nullopt;
        const std::string name = nameEntry.name();
        const FinderNameCheck check =
            checkFinderName(name, options.anyFirstCharacter, session.diagnostics);
        if (check.verdict == FinderNameVerdict::DiagnosticsSwitched)
            return std::nullopt;
        if (check.verdict == FinderNameVerdict::AskAgain) {
            if (check.message)
                session.ports.ui.showMessage(*check.message);
            continue;
        }

        const FinderResult result =
            findClients(session.folder, session.index, nameEntry.search(), name);
        if (result.tooManyMatches)
            session.ports.ui.showMessage(*result.tooManyMatches);
        TDlg2 matches(result, parent);
        if (matches.exec() != QDialog::Accepted)
            return std::nullopt;
        const std::optional<int> chosen = matches.chosenMatch();
        if (!chosen)
            return std::nullopt;
        const FinderMatch& match = result.matches[static_cast<std::size_t>(*chosen)];
        chooseClient(session, match);
        return match;
    }
}

bool askForClient(QWidget* parent, Session& session, int commandId)
{
    return findClient(parent, session, commandId).has_value();
}

} // namespace purrlodge
