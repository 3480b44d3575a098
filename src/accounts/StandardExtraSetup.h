#pragma once

#include <string>

#include "accounts/RatesRecord.h"
#include "ports/FormVerdict.h"

namespace purrlodge {

class DataFolder;

// Set Standard Extra (DIALOG 77), from Setup | Set Standard Extra.

struct StandardExtraForm {
    std::string name;   // edit 101 "Name of Extra"
    std::string amount; // edit 102 "Charge Amount"
};

// The dialog's opening: the extra as it is set, its charge with "%.2f", so
// that OK without a change keeps it.
[[nodiscard]] StandardExtraForm standardExtraFormFrom(const RatesRecord& rates);

// OK: NRATES.RTS is read again into `rates` (a file that cannot be read
// leaves the record as it was), the name (at most 23 characters) and the
// amount (at most 23 characters, read atof-style) are stored and the record
// is written back. The extra changes in `rates` only when the file was
// written; otherwise the dialog stays open.
FormVerdict acceptStandardExtraForm(const StandardExtraForm& form, RatesRecord& rates,
                                    const DataFolder& folder);

} // namespace purrlodge
