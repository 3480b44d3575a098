#pragma once

#include <cstddef>

#include "store/ClientRecord.h"
#include "store/FixedText.h"
#include "store/LittleEndian.h"

namespace purrlodge {

// The client's current or next stay, the file "<code>.TXI" (1049 bytes).
struct StayRecord {
    FixedText<25> arrivalDate;       // 0
    FixedText<25> departureDate;     // 25
    FixedText<25> arrivalRemark;     // 50
    FixedText<25> departureRemark;   // 75
    FixedText<81> textLine1;         // 100
    FixedText<81> textLine2;         // 181
    FixedText<81> furtherLines[4];   // 262
    FixedText<324> dialogText;       // 586
    FixedText<13> arrivalWeekday;    // 910
    FixedText<26> departureWeekday;  // 923
    Int32LE number;                  // 949
    Int32LE catInStay[catSlotCount]; // 953 (1 when the slot is ticked)
    Int32LE length;                  // 977
    Int32LE catAge[catSlotCount];    // 981
    unsigned char unused1[16];       // 1005
    Int32LE standardExtraChosen[3];  // 1021
    unsigned char unused2[16];       // 1033
};

static_assert(sizeof(StayRecord) == 1049 && alignof(StayRecord) == 1);
static_assert(offsetof(StayRecord, departureDate) == 25);
static_assert(offsetof(StayRecord, arrivalRemark) == 50);
static_assert(offsetof(StayRecord, departureRemark) == 75);
static_assert(offsetof(StayRecord, textLine1) == 100);
static_assert(offsetof(StayRecord, textLine2) == 181);
static_assert(offsetof(StayRecord, furtherLines) == 262);
static_assert(offsetof(StayRecord, dialogText) == 586);
static_assert(offsetof(StayRecord, arrivalWeekday) == 910);
static_assert(offsetof(StayRecord, departureWeekday) == 923);
static_assert(offsetof(StayRecord, number) == 949);
static_assert(offsetof(StayRecord, catInStay) == 953);
static_assert(offsetof(StayRecord, length) == 977);
static_assert(offsetof(StayRecord, catAge) == 981);
static_assert(offsetof(StayRecord, unused1) == 1005);
static_assert(offsetof(StayRecord, standardExtraChosen) == 1021);
static_assert(offsetof(StayRecord, unused2) == 1033);

} // namespace purrlodge
