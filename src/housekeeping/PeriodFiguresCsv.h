#pragma once

#include <string>

#include "housekeeping/PeriodReports.h"

namespace purrlodge {

// The period reports' figures as CSV: a heading line, a line for each month
// of the period ("2025-03") and a "Total" line. Money has two decimals and
// no currency sign; the average cats in residence per day too. Lines end
// in "\n".
[[nodiscard]] std::string periodFiguresCsv(const PeriodFigures& figures);

} // namespace purrlodge
