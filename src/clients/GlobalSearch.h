#pragma once

#include <array>
#include <string>
#include <string_view>
#include <vector>

#include "store/ClientIndex.h"

namespace purrlodge {

class DataFolder;

// Global Search: DIALOG 37 takes a word and the field groups to look in,
// DIALOG 38 lists one line per matching field of every client. The dialogs
// only show what globalSearch returns.

// Tab stops of the result list box (DIALOG 38), in dialog units.
inline constexpr std::array<int, 6> globalSearchTabStops{40, 90, 200, 250, 500, 800};

inline constexpr std::string_view globalSearchNoMatch = "                     No match found";

// The field groups, one per check box of DIALOG 37.
struct GlobalSearchGroups {
    bool surname = false;       // 105 "Surname"
    bool firstName = false;     // 106 "First name"
    bool style = false;         // 107 "Style"
    bool address = false;       // 108 "Address"
    bool telMobile = false;     // 109 "Tel \ Mobile"
    bool vet = false;           // 110 "Vet"
    bool catName = false;       // 111 "Cat Name"
    bool catBreed = false;      // 112 "Cat Breed"
    bool catColour = false;     // 113 "Cat Colour"
    bool notesAutoMemo = false; // 114 "Notes/Automemo"
    bool favouriteFood = false; // 115 "Fav-Food"
    bool forbiddenFood = false; // 116 "Forbid-Food"
    bool email = false;         // 121 "Email"

    // "Tick all" (119); "Untick all" (120) is a default-made value.
    [[nodiscard]] static GlobalSearchGroups all();
    [[nodiscard]] bool any() const;
};

struct GlobalSearchRequest {
    std::string text;
    bool caseSpecific = true; // 102 "Case specific"; false is 103 "Case independent"
    GlobalSearchGroups groups;
};

struct GlobalSearchResult {
    // One line per matching field, tab-separated: surname, first name, the
    // field, its group tag, the index position and the client code. Without a
    // match: ten empty lines and then the "No match found" line.
    std::vector<std::string> lines;
    // Whether "Show Details" (106) is offered: false when nothing matched.
    bool showDetails = false;
};

// Reads every client of the index once, in index order, and tests the ticked
// groups in a fixed order (address, tel/mobile, vet, style, surname, first
// name, cat name, cat colour, cat breed, notes and auto memo, favourite foods,
// forbidden foods, e-mail). In case-independent mode the text and each field
// are compared in upper case, except the telephone and mobile, which are
// always compared as stored.
[[nodiscard]] GlobalSearchResult globalSearch(const DataFolder& folder, const ClientIndex& index,
                                              const GlobalSearchRequest& request);

// The client code of a result line: its last tab-separated field.
[[nodiscard]] std::string codeOfResultLine(std::string_view line);

} // namespace purrlodge
