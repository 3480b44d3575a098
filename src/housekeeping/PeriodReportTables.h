#pragma once

#include <cstddef>
#include <string_view>
#include <vector>

#include "housekeeping/PeriodReports.h"
#include "print/PeriodReportPages.h"

namespace purrlodge {

// The three period reports, in the order the person is offered them.
enum class PeriodReport { FinancialSummary, DaysUse, ClientUsage };

// The report's title, also its print job's title: "Financial Summary",
// "Days Use" or "Client Usage".
[[nodiscard]] std::string_view periodReportTitle(PeriodReport report);

// How many clients each ranking of the usage report lists.
inline constexpr std::size_t rankedClients = 30;

// The tables of a report, as shown on screen and printed. The financial
// summary has a row per month and a totals row, amounts in the currency's
// main unit; the days-use summary a row per month (cat-days or cat-nights,
// the days of the month in the period, the average cats in residence per
// day, and a bar of that average in text) and a totals row; the client usage
// report the first clients by cash and, as a second table, by days.
[[nodiscard]] std::vector<ReportTable>
periodReportTables(PeriodReport report, const PeriodFigures& figures, unsigned char currencySign);

} // namespace purrlodge
