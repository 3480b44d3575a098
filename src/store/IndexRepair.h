#pragma once

#include <cstdint>
#include <string>
#include <vector>

#include "store/ClientIndex.h"

namespace purrlodge {

// What a check of a client index found, and what it kept.
struct IndexRepair {
    std::vector<std::string> findings; // one line for each kind of damage found
    int kept = 0;                      // clients listed after the repair

    [[nodiscard]] bool repaired() const { return !findings.empty(); }
};

// Checks an index read from a file of `fileSize` bytes against its own
// entries and, when they disagree, repairs it in place. The count is never
// trusted: a negative count or one above the list's room takes every entry
// that holds a code; otherwise the entries up to the count are taken. Entries
// without a code and entries repeating an earlier entry's code are left out,
// so no blank line sorts ahead of the clients and no client is listed twice.
// The clients kept stay in their order, the rest of the entries are emptied
// and the count says how many there are. A file of any other size than the
// index's is reported too. An index that needs nothing is left as it is.
[[nodiscard]] IndexRepair repairIndex(ClientIndex& index, std::uintmax_t fileSize);

// Whether the index was written in the format this program knows; an index
// made at start-up has the stamp 0 and is known too.
[[nodiscard]] bool isKnownIndexFormat(const ClientIndex& index);

// The entries whose code cannot name a file, as "entry N (surname): "code"".
[[nodiscard]] std::vector<std::string> unsafeCodeEntries(const ClientIndex& index);

} // namespace purrlodge
