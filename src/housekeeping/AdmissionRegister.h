#pragma once

#include <cstdint>
#include <vector>

#include "print/AdmissionRegisterPages.h"
#include "store/ClientIndex.h"

namespace purrlodge {

class Clock;
class DataFolder;

// The stays that began between two days, both counted (date numbers: noon of
// the day), for the admission register:
// every current client's stay record and every account in the client's
// account book whose arrival falls in the period, oldest first. A stay that
// is both booked and accounted for is listed once, with what the stay record
// adds (emergency contact, vaccination status). The cats of an account are
// described from the client record as it stands now.
[[nodiscard]] std::vector<AdmissionEntry>
collectAdmissions(const DataFolder& folder, const ClientIndex& index, std::int64_t firstDay,
                  std::int64_t lastDay, const Clock& clock);

} // namespace purrlodge
