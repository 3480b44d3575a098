#pragma once

#include <string>

#include "accounts/EstablishmentForm.h"
#include "accounts/RatesRecord.h"

namespace purrlodge {

class Session;

// Set Standard Extra (DIALOG 77), from Setup | Set Standard Extra.

struct StandardExtraForm {
    std::string name;   // edit 101 "Name of Extra"
    std::string amount; // edit 102 "Charge Amount"
};

// The dialog's opening: the extra as it is set, its charge with "%.2f", so
// that OK without a change keeps it.
[[nodiscard]] StandardExtraForm standardExtraFormFrom(const RatesRecord& rates);

// OK: NRATES.RTS is read again into session.rates (a file that cannot be read
// leaves the record as it was), the name (at most 23 characters) and the
// amount (at most 23 characters, read atof-style) are stored and the record
// is written back.
FormVerdict acceptStandardExtraForm(Session& session, const StandardExtraForm& form);

} // namespace purrlodge
