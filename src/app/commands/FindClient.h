#pragma once

#include <optional>
#include <string>
#include <string_view>

#include "clients/ClientFinder.h"
#include "store/ClientRecord.h"

namespace purrlodge {

class Session;

// What the person typed into Client Index (DIALOG 4).
struct FinderEntry {
    std::string name;
    FinderSearch search = FinderSearch::Person;

    friend bool operator==(const FinderEntry&, const FinderEntry&) = default;
};

// The questions of the client finder, asked by every command that works on
// one client.
class FinderQuestions {
public:
    virtual ~FinderQuestions() = default;

    // Client Index (DIALOG 4) set up by the options, its entries starting as
    // `shown` (empty at first, as typed after a refused name). The entries on
    // OK, nothing on Cancel.
    virtual std::optional<FinderEntry> askClientName(const FinderOptions& options,
                                                     const FinderEntry& shown) = 0;

    // Matching Clients (DIALOG 2) offering the result's rows: the 0-based
    // match checked on OK, nothing on Cancel or when no match can be chosen.
    virtual std::optional<int> chooseMatch(const FinderResult& result) = 0;
};

// The finder options of the command that opens it. Make Notes opens the
// cat-only finder: a note book is kept about the cats' special needs, so it is
// looked up by the cat it concerns. Edit Client Details takes a name with any
// first character, so that a client whose stored surname does not start with a
// capital (older data sets, names entered before the check) can still be found
// and put right. Every other command opens the ordinary finder.
[[nodiscard]] FinderOptions finderOptionsFor(int commandId);

// The client finder as the person meets it: Client Index asks for a name until
// it is acceptable (each refusal shown as a message), "Too Many Matches" is
// shown when the search stopped at twelve, Matching Clients offers the rows and
// the client chosen becomes the current one. The keywords that switch the
// diagnostic mode end the finder without a client.
//
// Returns the match chosen (its code names the client's files; the record's
// own code may disagree), or nothing when the finder was cancelled or no row
// was chosen, in which case the session is left as it was.
std::optional<FinderMatch> findClient(Session& session, FinderQuestions& questions, int commandId);

// Makes the chosen client the current one: its client and stay records are
// read into the session and its index code kept. A code that cannot name a
// file, or a client whose record file is missing, is told to the person
// instead and the session is left as it was; false then.
bool chooseClient(Session& session, const FinderMatch& match);

// Reads the client that the index names by `code` into `client`, telling the
// person instead when the code cannot name a file or the record file is
// missing; false then, with `client` cleared.
bool readListedClient(Session& session, std::string_view code, ClientRecord& client);

} // namespace purrlodge
