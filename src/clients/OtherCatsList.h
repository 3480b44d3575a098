#pragma once

#include <cstdint>
#include <string>
#include <string_view>
#include <vector>

#include "store/ClientRecord.h"

namespace purrlodge {

class DataFolder;

// The other-cats list (DIALOG 52 "Other Cats"): a heading and list lines
// about a client's former cats, opened from the client's full details.

inline constexpr std::string_view otherCatsListTitle = "Other Cats";

// Which of the two look-up buttons of the full details opened the list.
enum class OtherCatsMode {
    EarlierSpecialNotes, // "See Other Cats": the special notes of earlier cats (".XCT")
    NoteBook,            // "See Special Notes": the client's note book (".NTS")
};

// A note-book line longer than this is listed in pieces of this length.
inline constexpr std::size_t noteBookLineLimit = 500;
// The most of a note book that is read: many pages' worth of notes.
inline constexpr std::size_t noteBookLargest = 64 * 1024;
// The most ".XCT" records listed, so a damaged file cannot flood the list.
inline constexpr int earlierCatsListed = 1000;

struct OtherCatsListing {
    std::string heading; // static 102
    std::vector<std::string> lines;
};

// The letter of an earlier cat's sex in the ".XCT" file's own coding: 4 'f',
// 3 'F', 2 'm', anything else 'M'.
[[nodiscard]] char earlierCatSexLetter(std::int32_t sexCode);

// The list for the client whose files carry `code`. The earlier-special-notes
// mode lists each ".XCT" record (its line, its note when it holds a letter or
// digit, a blank line) under the heading "\nSummary of previous cats belonging
// to %s %s"; the note-book mode lists the non-empty lines of ".NTS" under
// "Special Notes for:  %s %s". Both then list every named record of ".XC2"
// with its notes. Missing files add nothing.
[[nodiscard]] OtherCatsListing otherCatsListing(const DataFolder& folder, std::string_view code,
                                                const ClientRecord& client, OtherCatsMode mode);

} // namespace purrlodge
