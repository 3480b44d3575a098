#pragma once

#include <cstddef>
#include <cstdint>
#include <string>
#include <string_view>
#include <vector>

#include "print/PopList.h"
#include "store/ClientIndex.h"

namespace purrlodge {

class DataFolder;

inline constexpr std::size_t nameTableSize = 600;
inline constexpr std::size_t nameTableNameWidth = 24;

// How often each cat name occurs, names compared exactly (cases distinct), in
// the order they were first met until sorted. The table holds 600 names; a
// name met when it is full is not counted, and is counted as rejected.
class NameCountTable {
public:
    // Counts the name once more, or enters it with a count of 1. Whether it
    // was counted.
    bool add(std::string_view name);

    // Highest count first; names of equal count keep the order they were met.
    void sortByCount();

    [[nodiscard]] const std::vector<PopListName>& entries() const { return entries_; }
    // The number of names that occur more than once.
    [[nodiscard]] int moreThanOnce() const;
    // The names met after the table was full.
    [[nodiscard]] int rejected() const { return rejected_; }

private:
    std::vector<PopListName> entries_;
    int rejected_ = 0;
};

// The names of the cats of every current client (the slots whose name holds a
// letter or digit), counted and sorted.
[[nodiscard]] NameCountTable tallyCatNames(const DataFolder& folder, const ClientIndex& index);

// Which names a list shows.
enum class NameList {
    Popular, // those that occur more than once
    Unique,  // those that occur exactly once
};

// The lines of the list, "\tname\tcount" from the top of a sorted table, then
// " " and "%d Unique Names" with the number of names listed.
[[nodiscard]] std::vector<std::string> nameListLines(const NameCountTable& table, NameList list);

// The list as a text file: its lines without their leading tab, one a line.
[[nodiscard]] std::string nameListFileText(const std::vector<std::string>& lines);

// The names that print: those that occur more than once, highest count first.
[[nodiscard]] std::vector<PopListName> popListNames(const NameCountTable& table);

} // namespace purrlodge
