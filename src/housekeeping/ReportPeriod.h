#pragma once

#include <optional>
#include <string>

#include "ports/Message.h"

namespace purrlodge {

class Clock;

// The period of the period reports, as typed: "dd/mm/yy" both.
struct ReportPeriod {
    std::string from;
    std::string to;

    friend bool operator==(const ReportPeriod&, const ReportPeriod&) = default;
};

// This calendar year so far as the local clock reads it: 1 January to today.
[[nodiscard]] ReportPeriod thisYearSoFar(const Clock& clock);

// Checks the typed period with the program's date rules: each date must have
// two "/" and pass the date checks (a four-digit year loses its century and
// both dates are left as "dd/mm/yy"), and the period must not end before it
// starts (one day is a period). The first failure's message, nothing when
// the period is good.
[[nodiscard]] std::optional<Message> reportPeriodError(ReportPeriod& period, int currentYear);

} // namespace purrlodge
