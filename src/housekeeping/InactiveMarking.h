#pragma once

#include <cstdint>
#include <string>
#include <string_view>

#include "store/ClientIndex.h"

namespace purrlodge {

class DataFolder;

// The typed cut-off date is read up to this many characters.
inline constexpr std::size_t cutOffDateLength = 23;

// What a run of the inactive marking came to.
struct InactiveMarking {
    int examined = 0;     // records rewritten
    int marked = 0;       // of them, marked inactive
    bool complete = true; // false when a write failed and the run stopped there
};

// The date number of a typed cut-off date (at most its first 23 characters).
[[nodiscard]] std::int64_t cutOffDay(std::string_view typed);

// Marks every current client whose last stay ended (the last-out date) before
// the cut-off day inactive and every other one active, rewriting each record
// crash-safely under the code the index names. A client not seen since before
// the cut-off becomes inactive; one seen on the day or later is active again.
// A failed write has been told to the person ("File Error") and ends the run.
[[nodiscard]] InactiveMarking markInactive(const DataFolder& folder, const ClientIndex& index,
                                           std::int64_t cutOff);

// "%d Clients examined\n%d Client Marked as Inactive".
[[nodiscard]] std::string inactiveMarkingText(const InactiveMarking& result);

} // namespace purrlodge
