#pragma once

#include <optional>
#include <string>
#include <string_view>
#include <vector>

#include "store/ClientRecord.h"

namespace purrlodge {

class DataFolder;

// The client's note book, "<code>.NTS": one line of the note per line of the
// file, each ended by CR LF.

// "Notes for %s %s %s" with the title, first name and surname.
[[nodiscard]] std::string noteBookHeading(const ClientRecord& client);

// The lines of the note book as the file holds them, each without its line
// end: a note book is a page of notes, so a damaged file of any size is read
// no further than noteBookLargest bytes. None when there is no note book.
[[nodiscard]] std::vector<std::string> noteBookFileLines(const DataFolder& folder,
                                                         std::string_view code);

// The lines of the note book for editing, each cut to 500 characters.
[[nodiscard]] std::vector<std::string> readNoteBook(const DataFolder& folder,
                                                    std::string_view code);

// OK of the note book: when the last line holds a letter or digit, every line
// (to 500 characters) is written; otherwise the note book is deleted as a
// whole, as the help page tells the person to delete the blank lines at the
// bottom. A write or a deletion that fails has been told to the person;
// false then, and the file is as it was.
[[nodiscard]] bool saveNoteBook(const DataFolder& folder, std::string_view code,
                                const std::vector<std::string>& lines);

// The memo as its file keeps it: every line end the two bytes CR LF, as memos
// have always been stored, whatever the typed text ends its lines with.
[[nodiscard]] std::string memoFileText(std::string_view typed);

// The auto memo's text as Set Auto Memo saves it: its file text, at most 1000
// characters in the 1001-byte record. Whether it was written.
[[nodiscard]] bool saveAutoMemo(const DataFolder& folder, std::string_view code,
                                std::string_view text);

inline constexpr std::size_t autoMemoLimit = 1000;
inline constexpr std::size_t accountNoteLimit = 120;

} // namespace purrlodge
