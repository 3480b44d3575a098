#pragma once

#include <string>
#include <string_view>

#include "store/ClientIndex.h"
#include "store/ClientRecord.h"

namespace purrlodge {

class DataFolder;

// How the address file heads each label.
enum class LabelStyle {
    Plain,     // the owner's title and name
    CatCareOf, // the cats' names, then "c\o " and the owner
};

inline constexpr std::string_view addressFileName = "Clientlist.txt";

// A text file made of the current clients, and how many it holds.
struct ExportText {
    std::string text;
    int count = 0;
};

// One client's label: the heading in the style (plain when the first cat has
// no name), each address line that holds a letter or digit, then an empty
// line. The cats' names are joined by ", ": "Tom, Kit".
[[nodiscard]] std::string addressLabel(const ClientRecord& client, LabelStyle style);

// The address file: the label of every current client in index order.
[[nodiscard]] ExportText addressFileText(const DataFolder& folder, const ClientIndex& index,
                                         LabelStyle style);

// "12 names and addresses printed to file:\n<path>".
[[nodiscard]] std::string addressesFiledText(int count, std::string_view path);

} // namespace purrlodge
