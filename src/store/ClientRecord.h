#pragma once

#include <cstddef>

#include "store/FixedText.h"
#include "store/LittleEndian.h"

namespace purrlodge {

inline constexpr int catSlotCount = 6;
inline constexpr int foodsPerCat = 3;

// One client and up to six cats, the file "<code>.DAT" (2763 bytes). Per-cat
// fields are parallel arrays indexed by cat slot 0..5; a slot is used when its
// name holds a letter or digit.
struct ClientRecord {
    FixedText<5> catExtraCode[catSlotCount];  // 0
    FixedText<9> code;                        // 30
    FixedText<9> style;                       // 39
    FixedText<25> firstName;                  // 48
    FixedText<37> address[4];                 // 73
    FixedText<25> catColour[catSlotCount];    // 221
    FixedText<25> telephone;                  // 371
    FixedText<25> vet;                        // 396
    FixedText<25> surname;                    // 421
    FixedText<25> reservedText1[6];           // 446
    FixedText<13> catName[catSlotCount];      // 596
    FixedText<13> catBreed[catSlotCount];     // 674
    FixedText<13> arrivalDate;                // 752
    FixedText<13> departureDate;              // 765
    FixedText<13> lastInDate;                 // 778
    FixedText<13> lastOutDate;                // 791
    FixedText<81> notes[4];                   // 804
    FixedText<81> email;                      // 1128
    FixedText<81> mobile;                     // 1209 (number before the first "::")
    FixedText<81> reservedText2[5];           // 1290
    Int32LE catBirthYear[catSlotCount];       // 1695
    Int32LE catSex[catSlotCount];             // 1719 (0 ?, 1 M, 2 F, 3 m, 4 f)
    Int32LE catMicrochip[catSlotCount];       // 1743 (0 unknown, 1 no, 2 yes)
    Int32LE reservedNumber;                   // 1767
    Int32LE inactive;                         // 1771
    Int32LE reservedNumbers[8];               // 1775
    Int32LE catLastVaccination[catSlotCount]; // 1807 (seconds since 1970)
    Int32LE firstRegistered;            // 1831 (date number of the day the client was registered)
    Int32LE knownRating;                // 1835 (how well the cats are known, 0..10)
    Int32LE catInsurance[catSlotCount]; // 1839 (0 unknown, 1 no, 2 yes)
    FixedText<25> favouriteFoods[catSlotCount][foodsPerCat]; // 1863
    FixedText<25> forbiddenFoods[catSlotCount][foodsPerCat]; // 2313
};

static_assert(sizeof(ClientRecord) == 2763 && alignof(ClientRecord) == 1);
static_assert(offsetof(ClientRecord, code) == 30);
static_assert(offsetof(ClientRecord, style) == 39);
static_assert(offsetof(ClientRecord, firstName) == 48);
static_assert(offsetof(ClientRecord, address) == 73);
static_assert(offsetof(ClientRecord, catColour) == 221);
static_assert(offsetof(ClientRecord, telephone) == 371);
static_assert(offsetof(ClientRecord, vet) == 396);
static_assert(offsetof(ClientRecord, surname) == 421);
static_assert(offsetof(ClientRecord, reservedText1) == 446);
static_assert(offsetof(ClientRecord, catName) == 596);
static_assert(offsetof(ClientRecord, catBreed) == 674);
static_assert(offsetof(ClientRecord, arrivalDate) == 752);
static_assert(offsetof(ClientRecord, departureDate) == 765);
static_assert(offsetof(ClientRecord, lastInDate) == 778);
static_assert(offsetof(ClientRecord, lastOutDate) == 791);
static_assert(offsetof(ClientRecord, notes) == 804);
static_assert(offsetof(ClientRecord, email) == 1128);
static_assert(offsetof(ClientRecord, mobile) == 1209);
static_assert(offsetof(ClientRecord, reservedText2) == 1290);
static_assert(offsetof(ClientRecord, catBirthYear) == 1695);
static_assert(offsetof(ClientRecord, catSex) == 1719);
static_assert(offsetof(ClientRecord, catMicrochip) == 1743);
static_assert(offsetof(ClientRecord, reservedNumber) == 1767);
static_assert(offsetof(ClientRecord, inactive) == 1771);
static_assert(offsetof(ClientRecord, reservedNumbers) == 1775);
static_assert(offsetof(ClientRecord, catLastVaccination) == 1807);
static_assert(offsetof(ClientRecord, firstRegistered) == 1831);
static_assert(offsetof(ClientRecord, knownRating) == 1835);
static_assert(offsetof(ClientRecord, catInsurance) == 1839);
static_assert(offsetof(ClientRecord, favouriteFoods) == 1863);
static_assert(offsetof(ClientRecord, forbiddenFoods) == 2313);

} // namespace purrlodge
