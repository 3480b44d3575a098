#include "app/commands/ClientLookup.h"

#include "app/CommandIds.h"
#include "app/Session.h"
#include "store/ClientFiles.h"

namespace purrlodge {

void showClientDetails(Session& session, ClientLookupQuestions& questions,
                       const ClientRecord& client, const std::string& code)
{
    const ClientDetailsListing details = clientDetailsListing(
        session.folder, client, code, session.currentYear, session.ports.clock);
    // Only the lists a button can open are read.
    const auto listingIf = [&](bool enabled, OtherCatsMode mode) {
        return enabled ? otherCatsListing(session.folder, code, client, mode) : OtherCatsListing{};
    };
    questions.showClientDetails(
        details, listingIf(details.otherCatsEnabled, OtherCatsMode::EarlierSpecialNotes),
        listingIf(details.specialNotesEnabled, OtherCatsMode::NoteBook));
}

void seeClientDetails(Session& session, ClientLookupQuestions& questions)
{
    if (const std::optional<FinderMatch> match =
            findClient(session, questions, command::seeClientDetails))
        showClientDetails(session, questions, session.client, match->code);
}

void globalSearch(Session& session, ClientLookupQuestions& questions)
{
    const std::optional<GlobalSearchRequest> request = questions.askGlobalSearch();
    if (!request)
        return;
    const GlobalSearchResult result =
        purrlodge::globalSearch(session.folder, session.index, *request);
    questions.showGlobalSearchResults(result, [&session, &questions](const std::string& line) {
        const std::string code = codeOfResultLine(line);
        ClientRecord client{};
        if (readListedClient(session, code, client))
            showClientDetails(session, questions, client, code);
    });
}

} // namespace purrlodge
