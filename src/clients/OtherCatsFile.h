#pragma once

#include <cstddef>

#include "store/FixedText.h"
#include "store/LittleEndian.h"

namespace purrlodge {

inline constexpr int otherCatsKept = 10;

// One cat that has left its client.
struct OtherCatRecord {
    Int32LE sex;              // 0 (as the client record; -1 in a cleared record)
    Int32LE spare;            // 4 (always 0)
    FixedText<25> colour;     // 8
    FixedText<13> name;       // 33 (empty marks an unused record)
    FixedText<13> breed;      // 46
    FixedText<81> notes;      // 59
    FixedText<81> spareText1; // 140
    FixedText<81> history;    // 221 ("Born %d,   Departed %s,   age %d")
    FixedText<25> spareText2; // 302
    FixedText<25> spareText3; // 327
    FixedText<25> reason;     // 352
};

static_assert(sizeof(OtherCatRecord) == 377 && alignof(OtherCatRecord) == 1);
static_assert(offsetof(OtherCatRecord, spare) == 4);
static_assert(offsetof(OtherCatRecord, colour) == 8);
static_assert(offsetof(OtherCatRecord, name) == 33);
static_assert(offsetof(OtherCatRecord, breed) == 46);
static_assert(offsetof(OtherCatRecord, notes) == 59);
static_assert(offsetof(OtherCatRecord, spareText1) == 140);
static_assert(offsetof(OtherCatRecord, history) == 221);
static_assert(offsetof(OtherCatRecord, spareText2) == 302);
static_assert(offsetof(OtherCatRecord, spareText3) == 327);
static_assert(offsetof(OtherCatRecord, reason) == 352);

// A client's former cats, the file "<code>.XC2" (3774 bytes), oldest first.
struct OtherCatsFile {
    Int32LE header;                     // 0 (kept as read)
    OtherCatRecord cats[otherCatsKept]; // 4
};

static_assert(sizeof(OtherCatsFile) == 3774 && alignof(OtherCatsFile) == 1);
static_assert(offsetof(OtherCatsFile, cats) == 4);

} // namespace purrlodge
