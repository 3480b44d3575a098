#pragma once

#include <cstdint>
#include <span>
#include <string>

namespace purrlodge {

struct PrintBuffer;
class PrintJobRunner;

// A cat name and how many cats carry it, as the popular-names list prints it.
struct PopListName {
    std::string name;
    std::int32_t count = 0;

    friend bool operator==(const PopListName&, const PopListName&) = default;
};

inline constexpr int popListNamesPerPage = 30;
inline constexpr const char* popListTitle = "pop list";

// The printed line of one name: 24 blanks with the name from the first column
// and the count from the sixteenth.
[[nodiscard]] std::string popListLine(const PopListName& name);

// Prints the names (those that occur more than once) 30 to a page, each page
// headed "The %d cats whose name occurs more than once" with `moreThanOnce`.
// Each page runs as the job "pop list" without the print dialog and the buffer
// is cleared after it. The buffer is not cleared before the first page, which
// therefore follows whatever the last printout left in it. No names, no page.
// Returns the number of pages that printed.
int printPopList(PrintBuffer& buffer, std::span<const PopListName> names, int moreThanOnce,
                 PrintJobRunner& jobs);

} // namespace purrlodge
