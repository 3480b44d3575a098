#pragma once

#include <functional>
#include <optional>
#include <string>

#include "app/commands/FindClient.h"
#include "clients/ClientDetails.h"
#include "clients/GlobalSearch.h"
#include "clients/OtherCatsList.h"

namespace purrlodge {

class Session;

// Tasks | See Client Details and Tasks | Global Search: looking clients up
// without changing them.
class ClientLookupQuestions : public FinderQuestions {
public:
    // Client's Full Details (DIALOG 12) showing the listing. Its "See Other
    // Cats" and "See Special Notes" buttons, when enabled, open Other Cats
    // (DIALOG 52) with the listing of their mode.
    virtual void showClientDetails(const ClientDetailsListing& details,
                                   const OtherCatsListing& otherCats,
                                   const OtherCatsListing& specialNotes) = 0;

    // Global Search (DIALOG 37): the search as set up, nothing on Cancel.
    virtual std::optional<GlobalSearchRequest> askGlobalSearch() = 0;

    // Matching Entries (DIALOG 38) listing the result. "Show Details" hands the
    // selected line to `showDetails`; the list stays open until OK or Cancel.
    using ResultLineAction = std::function<void(const std::string& line)>;
    virtual void showGlobalSearchResults(const GlobalSearchResult& result,
                                         const ResultLineAction& showDetails) = 0;
};

// Shows the full details of a client whose files carry `code`.
void showClientDetails(Session& session, ClientLookupQuestions& questions,
                       const ClientRecord& client, const std::string& code);

// Tasks | See Client Details (11859): the finder, then the chosen client's
// full details.
void seeClientDetails(Session& session, ClientLookupQuestions& questions);

// Tasks | Global Search (11777): the search, its results, and the details of
// any result line's client, read afresh (looking does not change the current
// client).
void globalSearch(Session& session, ClientLookupQuestions& questions);

} // namespace purrlodge
