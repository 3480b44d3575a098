#pragma once

#include <cstddef>

#include "store/FixedText.h"
#include "store/LittleEndian.h"

namespace purrlodge {

// Special notes of an earlier cat, one record of the file "<code>.XCT" (a
// sequence of 292-byte records read until the end of the file).
struct EarlierCatRecord {
    Int32LE sex;                 // 0 (this file's own coding: 4 'f', 3 'F', 2 'm', else 'M')
    FixedText<25> colour;        // 4
    FixedText<13> name;          // 29
    FixedText<13> breed;         // 42
    FixedText<162> note;         // 55
    FixedText<25> dateOfBirth;   // 217
    FixedText<25> notifiedValue; // 242
    FixedText<25> notifiedTo;    // 267
};

static_assert(sizeof(EarlierCatRecord) == 292 && alignof(EarlierCatRecord) == 1);
static_assert(offsetof(EarlierCatRecord, colour) == 4);
static_assert(offsetof(EarlierCatRecord, name) == 29);
static_assert(offsetof(EarlierCatRecord, breed) == 42);
static_assert(offsetof(EarlierCatRecord, note) == 55);
static_assert(offsetof(EarlierCatRecord, dateOfBirth) == 217);
static_assert(offsetof(EarlierCatRecord, notifiedValue) == 242);
static_assert(offsetof(EarlierCatRecord, notifiedTo) == 267);

} // namespace purrlodge
