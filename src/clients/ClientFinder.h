#pragma once

#include <cstddef>
#include <optional>
#include <string>
#include <string_view>
#include <vector>

#include "ports/Message.h"
#include "store/ClientIndex.h"
#include "store/ClientRecord.h"

namespace purrlodge {

class DataFolder;

// The client finder: DIALOG 4 "Client Index" takes a name, the index or every
// client record is searched, and DIALOG 2 "Matching Clients" offers the
// matches. The dialogs only show what these functions return.

inline constexpr int finderMatchLimit = 12;
inline constexpr std::size_t finderTextLimit = 80; // characters the name box takes

inline constexpr std::string_view inspectModeOnKeyword = "InspectModeOn";
inline constexpr std::string_view inspectModeOffKeyword = "InspectModeOff";

enum class FinderSearch { Person, Cat };

// How a command opens the finder.
struct FinderOptions {
    // "Search for Person" hidden and "Search for Cat" preselected.
    bool catOnly = false;
    // The name need not start with a capital letter.
    bool anyFirstCharacter = false;

    [[nodiscard]] FinderSearch preselected() const
    {
        return catOnly ? FinderSearch::Cat : FinderSearch::Person;
    }
};

enum class FinderNameVerdict {
    Search,              // go on and search
    DiagnosticsSwitched, // a keyword switched the diagnostic mode; the finder ends without a client
    AskAgain,            // show the message, then DIALOG 4 again
};

struct FinderNameCheck {
    FinderNameVerdict verdict = FinderNameVerdict::Search;
    std::optional<Message> message; // set with AskAgain
};

// Checks the name typed into DIALOG 4. "InspectModeOn" and "InspectModeOff"
// (exactly so) switch `diagnostics`. A text without a letter or digit is
// refused, and so is one that does not start with 'A'-'Z' unless
// anyFirstCharacter is set.
[[nodiscard]] FinderNameCheck checkFinderName(std::string_view text, bool anyFirstCharacter,
                                              bool& diagnostics);

// One row of DIALOG 2.
struct FinderMatch {
    std::string surname; // the index key, or the owner's surname for a cat match
    std::string code;    // the client code from the index
    // The 1-based index entry for a person match; 0 for a cat match, whose
    // choice leaves the current index position as it was.
    int indexPosition = 0;
    std::string row; // "%s %s": the surname and the client's cat list
};

struct FinderResult {
    std::vector<FinderMatch> matches; // at most 12, in index order
    // The texts of the rows shown, in order; the other rows are hidden. With
    // no match this is the one "No %s of name %s found" text and no radio
    // button is checked; otherwise the first is.
    std::vector<std::string> rows;
    // Shown before DIALOG 2 when a 13th match stopped the search; the twelve
    // rows found before it are shown as usual.
    std::optional<Message> tooManyMatches;
};

// Searches case-sensitively. Person: index entries in order whose surname
// contains the text and starts with the text's first character. Cat: every
// client record in index order, one match for each cat-name slot that contains
// the text. Each record is read at most once.
[[nodiscard]] FinderResult findClients(const DataFolder& folder, const ClientIndex& index,
                                       FinderSearch search, std::string_view text);

// "(Tom, Kitty)": the cat names up to the first empty slot, or "(No cat now)"
// when the first slot is empty.
[[nodiscard]] std::string catListText(const ClientRecord& client);

// The two texts of DIALOG 7 "Client Search Help".
struct FinderHelpTexts {
    std::string_view person;
    std::string_view cat;
};
[[nodiscard]] FinderHelpTexts finderHelpTexts();

} // namespace purrlodge
