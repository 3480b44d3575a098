#pragma once

#include <string>

#include "ports/FormVerdict.h"

namespace purrlodge {

// The entries of the Establishment Details dialog (DIALOG 13), as typed.
struct EstablishmentForm {
    std::string name;                // 102
    std::string manager;             // 103
    std::string address[4];          // 104..107
    std::string telephone;           // 114
    std::string fax;                 // 115
    std::string email;               // 116
    std::string vaccinationYears;    // 120
    std::string arrivalSheetLine[3]; // 124..126
    std::string namesOnAccounts;     // 129
    std::string typeSize = "2";      // 134
    std::string chequesPayableTo;    // 136
    bool onArrivalSheet = false;     // 130 "Arrival Sheet"
    bool onAccountSheet = false;     // 131 "Account Sheet"
    bool inRed = false;              // 139 "In Red" (else 140 "In Black")
};

} // namespace purrlodge
