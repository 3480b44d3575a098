#pragma once

#include "store/ClientRecord.h"

namespace purrlodge {

// Whether cat slot s holds a cat (its name has a letter or digit).
[[nodiscard]] bool isCatSlotUsed(const ClientRecord& client, int slot);

// Closes the gaps between used cat slots, keeping the cats' order. Each cat's
// name, breed, colour, extra code, birth year, sex, microchip, last
// vaccination and insurance move with it; the favourite and forbidden foods
// stay with their slot numbers, as they always have.
void compactCats(ClientRecord& client);

// Empties every text and zeroes every number of a client record.
void clearClientRecord(ClientRecord& client);

} // namespace purrlodge
