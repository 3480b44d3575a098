#pragma once

#include <cstddef>

#include "store/FixedText.h"
#include "store/LittleEndian.h"

namespace purrlodge {

// One account (906 bytes): the unit of the account book and the account being
// prepared. Amounts are 32-bit floats in the currency's main unit.
struct AccountRecord {
    Int32LE daysCharged;               // 0
    Int32LE receiptNumber;             // 4 (0 marks an empty slot)
    Int32LE reserved1;                 // 8
    Int32LE catsBoarded;               // 12
    Int32LE daysAtOldRate;             // 16
    Int32LE daysAtNewRate;             // 20
    Int32LE standardExtraCharged;      // 24
    Int32LE reserved2;                 // 28
    Int32LE omitTopSheet;              // 32
    Int32LE omitCopy;                  // 36
    Int32LE reserved3;                 // 40
    Int32LE catNotBoarded[6];          // 44 (1 when not boarded)
    FixedText<25> arrivalDate;         // 68
    FixedText<25> departureDate;       // 93
    FixedText<25> oldRateEndDate;      // 118
    FixedText<25> newRateStartDate;    // 143
    FixedText<25> reservedText1;       // 168
    FixedText<25> catNames[6];         // 193 (cats boarded, in box order)
    FixedText<81> extrasDescription;   // 343
    FixedText<81> creditDescription;   // 424
    FixedText<81> discountDescription; // 505
    FixedText<81> reservedText2;       // 586
    FixedText<81> reservedText3;       // 667
    FixedText<81> reservedText4;       // 748
    Float32LE extrasAmount;            // 829
    Float32LE discountPercentage;      // 833
    Float32LE discountAmount;          // 837
    Float32LE grossBoard;              // 841
    Float32LE netBoard;                // 845
    Float32LE finalBalance;            // 849
    Float32LE creditAmount;            // 853
    Float32LE boardAtOldRate;          // 857 (9999.99 marks an abbreviated older account)
    Float32LE boardAtNewRate;          // 861
    Float32LE euroEquivalent;          // 865
    Float32LE oldRate;                 // 869 (0 when the stay was not split)
    Float32LE rateUsed;                // 873
    unsigned char reserved4[16];       // 877
    Int32LE filedTime;                 // 893 (seconds since 1970)
    Int32LE reserved5;                 // 897
    Int32LE pencePerEuroWhole;         // 901 (truncated)
    unsigned char currencySign;        // 905
};

static_assert(sizeof(AccountRecord) == 906 && alignof(AccountRecord) == 1);
static_assert(offsetof(AccountRecord, receiptNumber) == 4);
static_assert(offsetof(AccountRecord, catsBoarded) == 12);
static_assert(offsetof(AccountRecord, daysAtOldRate) == 16);
static_assert(offsetof(AccountRecord, daysAtNewRate) == 20);
static_assert(offsetof(AccountRecord, standardExtraCharged) == 24);
static_assert(offsetof(AccountRecord, omitTopSheet) == 32);
static_assert(offsetof(AccountRecord, omitCopy) == 36);
static_assert(offsetof(AccountRecord, catNotBoarded) == 44);
static_assert(offsetof(AccountRecord, arrivalDate) == 68);
static_assert(offsetof(AccountRecord, departureDate) == 93);
static_assert(offsetof(AccountRecord, oldRateEndDate) == 118);
static_assert(offsetof(AccountRecord, newRateStartDate) == 143);
static_assert(offsetof(AccountRecord, reservedText1) == 168);
static_assert(offsetof(AccountRecord, catNames) == 193);
static_assert(offsetof(AccountRecord, extrasDescription) == 343);
static_assert(offsetof(AccountRecord, creditDescription) == 424);
static_assert(offsetof(AccountRecord, discountDescription) == 505);
static_assert(offsetof(AccountRecord, reservedText2) == 586);
static_assert(offsetof(AccountRecord, reservedText3) == 667);
static_assert(offsetof(AccountRecord, reservedText4) == 748);
static_assert(offsetof(AccountRecord, extrasAmount) == 829);
static_assert(offsetof(AccountRecord, discountPercentage) == 833);
static_assert(offsetof(AccountRecord, discountAmount) == 837);
static_assert(offsetof(AccountRecord, grossBoard) == 841);
static_assert(offsetof(AccountRecord, netBoard) == 845);
static_assert(offsetof(AccountRecord, finalBalance) == 849);
static_assert(offsetof(AccountRecord, creditAmount) == 853);
static_assert(offsetof(AccountRecord, boardAtOldRate) == 857);
static_assert(offsetof(AccountRecord, boardAtNewRate) == 861);
static_assert(offsetof(AccountRecord, euroEquivalent) == 865);
static_assert(offsetof(AccountRecord, oldRate) == 869);
static_assert(offsetof(AccountRecord, rateUsed) == 873);
static_assert(offsetof(AccountRecord, reserved4) == 877);
static_assert(offsetof(AccountRecord, filedTime) == 893);
static_assert(offsetof(AccountRecord, reserved5) == 897);
static_assert(offsetof(AccountRecord, pencePerEuroWhole) == 901);
static_assert(offsetof(AccountRecord, currencySign) == 905);

} // namespace purrlodge
