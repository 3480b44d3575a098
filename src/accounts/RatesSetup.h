#pragma once

#include <array>
#include <cstdint>
#include <optional>
#include <string>

#include "accounts/RatesRecord.h"
#include "ports/FormVerdict.h"

namespace purrlodge {

class Clock;
class DataFolder;

// Setup Daily Board Rates (DIALOG 14), from Setup | Set Rates.

// The dialog's entries and what it shows.
struct RatesForm {
    std::array<std::string, 6> presentRate;  // edits 101, 103, ... 111 (1..6 cats)
    std::array<std::string, 6> previousRate; // edits 102, 104, ... 112: shown, never read back
    // The checked currency button: 116 "Euros" 0, 117 "Dollars" 1, 118
    // "Sterling" 2, 124 "Other" 3; nothing when none is checked.
    std::optional<std::uint32_t> currency;
    bool perDay = true;               // 133 "Per Day", else 134 "Per Night"
    bool updatePreviousRates = false; // 122 "Yes", else 123 "No"
    std::string todayText;            // static 119
    std::string previousSetText;      // static 120
};

// The dialog's opening from the rates record: each rate "%.2f", the stored
// currency's button, "No", the charging unit, "Today: %d:%d - %d %s, %d" from
// the local time now and "'Previous' set: at %d:%d on %d %s, %d" from the
// change time (hours and minutes not padded).
[[nodiscard]] RatesForm ratesFormFrom(const RatesRecord& rates, const Clock& clock);

// Opens the dialog as the program does: reads NRATES.RTS again into `rates`
// (a file that cannot be read leaves the record as it was) and returns the
// opening form.
[[nodiscard]] RatesForm openRatesForm(RatesRecord& rates, const DataFolder& folder,
                                      const Clock& clock);

// The OK rules, in order, on `rates`: (1) the time now; (2) with "Yes"
// it becomes the change time; (3) the charging unit; (4) with "Yes" the
// present rates from before the dialog become the previous rates; (5) each
// present-rate edit (at most 7 characters) read atof-style, so an empty one
// stores 0; (6) when the previous rate for 1 cat is exactly 0, the previous
// rates take the new present rates; (7) the checked currency, unchanged when
// none is; (8) NRATES.RTS is written and the dialog closes. `rates` changes
// only when the file was written; otherwise the dialog stays open.
FormVerdict acceptRatesForm(const RatesForm& form, RatesRecord& rates, const DataFolder& folder,
                            const Clock& clock);

} // namespace purrlodge
