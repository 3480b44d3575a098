#pragma once

#include <cstddef>

#include "store/FixedText.h"
#include "store/LittleEndian.h"

namespace purrlodge {

enum class Currency : std::uint32_t { Euros = 0, Dollars = 1, Sterling = 2, Other = 3 };

// The daily board rates, the file "NRATES.RTS" (473 bytes).
struct RatesRecord {
    Float32LE presentRate[6];         // 0 (for 1..6 cats)
    Float32LE standardExtraCharge;    // 24
    Uint32LE reserved1;               // 28
    Uint32LE reserved2;               // 32
    Float32LE previousRate[6];        // 36
    Uint32LE currency;                // 60 (see Currency)
    Uint32LE perDay;                  // 64 (1 per day, 0 per night)
    Uint32LE markedInactiveCount;     // 68
    Uint32LE reserved3;               // 72
    FixedText<106> standardExtraName; // 76 (at most 23 characters are taken)
    FixedText<81> reservedText1;      // 182
    FixedText<81> reservedText2;      // 263
    Int32LE rateChangeTime;           // 344 (seconds since 1970)
    Uint32LE reserved4;               // 348
    FixedText<121> accountNote;       // 352

    // Euros and the exchange rate come into play only for Sterling.
    [[nodiscard]] bool inSterling() const
    {
        return currency.get() == static_cast<std::uint32_t>(Currency::Sterling);
    }
};

static_assert(sizeof(RatesRecord) == 473 && alignof(RatesRecord) == 1);
static_assert(offsetof(RatesRecord, standardExtraCharge) == 24);
static_assert(offsetof(RatesRecord, reserved1) == 28);
static_assert(offsetof(RatesRecord, reserved2) == 32);
static_assert(offsetof(RatesRecord, previousRate) == 36);
static_assert(offsetof(RatesRecord, currency) == 60);
static_assert(offsetof(RatesRecord, perDay) == 64);
static_assert(offsetof(RatesRecord, markedInactiveCount) == 68);
static_assert(offsetof(RatesRecord, reserved3) == 72);
static_assert(offsetof(RatesRecord, standardExtraName) == 76);
static_assert(offsetof(RatesRecord, reservedText1) == 182);
static_assert(offsetof(RatesRecord, reservedText2) == 263);
static_assert(offsetof(RatesRecord, rateChangeTime) == 344);
static_assert(offsetof(RatesRecord, reserved4) == 348);
static_assert(offsetof(RatesRecord, accountNote) == 352);

} // namespace purrlodge
