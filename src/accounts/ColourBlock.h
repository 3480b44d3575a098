#pragma once

#include <cstddef>

#include "store/LittleEndian.h"

namespace purrlodge {

// The colour-printing companion block, the file "NESTAB.XAT" (8500 bytes).
// Only the selected scheme has a meaning; the rest is kept as read.
struct ColourBlock {
    Uint32LE scheme;          // 0 (0..10, one of the eleven colour schemes)
    unsigned char rest[8496]; // 4
};

static_assert(sizeof(ColourBlock) == 8500 && alignof(ColourBlock) == 1);
static_assert(offsetof(ColourBlock, rest) == 4);

} // namespace purrlodge
