#pragma once

#include <cstddef>

#include "store/LittleEndian.h"

namespace purrlodge {

// The pound/euro rate, the file "EURORATE.XCH" (8 bytes).
struct ExchangeRateRecord {
    Float32LE pencePerEuro; // 0 (value of one euro in pence sterling)
    Uint32LE showEuros;     // 4 (1 yes, 0 no)
};

static_assert(sizeof(ExchangeRateRecord) == 8 && alignof(ExchangeRateRecord) == 1);
static_assert(offsetof(ExchangeRateRecord, showEuros) == 4);

} // namespace purrlodge
