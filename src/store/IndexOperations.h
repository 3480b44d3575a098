#pragma once

#include <string_view>

#include "store/ClientIndex.h"

namespace purrlodge {

// Sorts entries 1..count by key in word-sort order with the stable bubble sort
// the index has always used, then empties entry 0.
void sortIndexEntries(ClientIndex& index);

// The entry number 1..count whose code equals the given one, compared without
// regard to case; -1 when none.
[[nodiscard]] int findCode(const ClientIndex& index, std::string_view code);

// Appends an entry after the last used one (count + 1). Returns false when the
// index is full.
bool appendEntry(ClientIndex& index, std::string_view key, std::string_view code);

// Removes entry number `at` (1..count): later entries move one place forward
// and the count drops by one.
void removeEntry(ClientIndex& index, int at);

} // namespace purrlodge
