#pragma once

#include <cstddef>

#include "store/FixedText.h"

namespace purrlodge {

// The cattery's own details, the file "NESTAB.DAT" (1620 bytes).
struct EstablishmentRecord {
    FixedText<81> name;                // 0 (required)
    FixedText<81> manager;             // 81
    FixedText<81> address[4];          // 162
    FixedText<81> telephone;           // 486
    FixedText<81> fax;                 // 567
    FixedText<81> email;               // 648
    FixedText<81> vaccinationYears;    // 729 (as typed, required)
    FixedText<81> arrivalSheetLine[3]; // 810 (optional)
    FixedText<81> namesOnAccounts;     // 1053 (optional, printed in brackets)
    FixedText<81> managerTypeSize;     // 1134 (as typed)
    FixedText<81> chequesPayableTo;    // 1215 (optional)
    FixedText<162> chequesColour;      // 1296 ("**RED**" or "**BLACK**")
    FixedText<81> colourPrinting;      // 1458 (digits "0".."5", one per printout item)
    FixedText<81> displayFlags;        // 1539 ("C" arrival sheet, "A" account, then "1".."5")
};

static_assert(sizeof(EstablishmentRecord) == 1620 && alignof(EstablishmentRecord) == 1);
static_assert(offsetof(EstablishmentRecord, manager) == 81);
static_assert(offsetof(EstablishmentRecord, address) == 162);
static_assert(offsetof(EstablishmentRecord, telephone) == 486);
static_assert(offsetof(EstablishmentRecord, fax) == 567);
static_assert(offsetof(EstablishmentRecord, email) == 648);
static_assert(offsetof(EstablishmentRecord, vaccinationYears) == 729);
static_assert(offsetof(EstablishmentRecord, arrivalSheetLine) == 810);
static_assert(offsetof(EstablishmentRecord, namesOnAccounts) == 1053);
static_assert(offsetof(EstablishmentRecord, managerTypeSize) == 1134);
static_assert(offsetof(EstablishmentRecord, chequesPayableTo) == 1215);
static_assert(offsetof(EstablishmentRecord, chequesColour) == 1296);
static_assert(offsetof(EstablishmentRecord, colourPrinting) == 1458);
static_assert(offsetof(EstablishmentRecord, displayFlags) == 1539);

} // namespace purrlodge
