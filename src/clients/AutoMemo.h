#pragma once

#include <cstddef>

#include "store/FixedText.h"

namespace purrlodge {

// A client's auto memo, the file "<code>.ANT" (1001 bytes). The file's
// existence marks the client as having a memo.
struct AutoMemo {
    FixedText<1001> text; // 0 (at most 1000 characters)
};

static_assert(sizeof(AutoMemo) == 1001 && alignof(AutoMemo) == 1);

} // namespace purrlodge
