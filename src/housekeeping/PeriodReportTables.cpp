#include "housekeeping/PeriodReportTables.h"

#include <algorithm>
#include <string>

#include "store/TextHelpers.h"

namespace purrlodge {

namespace {

constexpr int barWidth = 40;

std::string unitName(const PeriodFigures& figures)
{
    return figures.perNight ? "Cat-nights" : "Cat-days";
}

std::vector<std::string> moneyRow(std::string label, const MonthFigures& month)
{
    return {std::move(label),           std::to_string(month.accounts), moneyText(month.board),
            moneyText(month.discounts), moneyText(month.extras),        moneyText(month.credits),
            moneyText(month.balances)};
}

ReportTable financialSummary(const PeriodFigures& figures, unsigned char currencySign)
{
    // The currency in the headings, not a line of its own: a year's rows
    // then fit one page. The months need no heading.
    const std::string sign = currencySign != ' ' && currencySign != 0
                                 ? std::string(" ") + static_cast<char>(currencySign)
                                 : std::string();
    ReportTable table;
    table.columns = {{"", 1, false},
                     {"Accounts", 8, true},
                     {"Board" + sign, 12, true},
                     {"Discounts" + sign, 17, true},
                     {"Extras" + sign, 21, true},
                     {"Credits" + sign, 26, true},
                     {"Balances" + sign, 31, true}};
    for (const MonthFigures& month : figures.months)
        table.rows.push_back(moneyRow(monthLabel(month), month));
    table.rows.push_back(moneyRow("Total", figures.totals));
    table.lastRowBold = true;
    return table;
}

ReportTable daysUse(const PeriodFigures& figures)
{
    ReportTable table;
    table.subtitle = "Average cats in residence per day of the month";
    table.columns = {{"Month", 1, false},
                     {unitName(figures), 11, true},
                     {"Days", 14, true},
                     {"Cats per day", 19, true},
                     {"", 20, false}};
    std::int64_t largest = 0;
    for (const MonthFigures& month : figures.months)
        largest = std::max(largest, occupancyHundredths(month));
    for (const MonthFigures& month : figures.months) {
        const std::int64_t occupancy = occupancyHundredths(month);
        table.rows.push_back({monthLabel(month), std::to_string(month.catDays),
                              std::to_string(month.daysInPeriod), moneyText(occupancy),
                              textBar(occupancy, largest, barWidth)});
    }
    table.rows.push_back({"Total", std::to_string(figures.totals.catDays),
                          std::to_string(figures.totals.daysInPeriod),
                          moneyText(occupancyHundredths(figures.totals)), ""});
    table.lastRowBold = true;
    return table;
}

ReportTable ranking(const std::vector<ClientUsage>& clients, std::string subtitle,
                    const PeriodFigures& figures)
{
    ReportTable table;
    table.subtitle = std::move(subtitle);
    table.columns = {{"Client", 1, false},
                     {"Accounts", 19, true},
                     {"Cash", 25, true},
                     {unitName(figures), 31, true}};
    int rank = 0;
    for (const ClientUsage& client : clients)
        table.rows.push_back({formatted("%d.  ", ++rank) + client.name,
                              std::to_string(client.accounts), moneyText(client.cash),
                              std::to_string(client.catDays)});
    return table;
}

} // namespace

std::string_view periodReportTitle(PeriodReport report)
{
    switch (report) {
    case PeriodReport::FinancialSummary:
        return "Financial Summary";
    case PeriodReport::DaysUse:
        return "Days Use";
    case PeriodReport::ClientUsage:
        break;
    }
    return "Client Usage";
}

std::vector<ReportTable> periodReportTables(PeriodReport report, const PeriodFigures& figures,
                                            unsigned char currencySign)
{
    switch (report) {
    case PeriodReport::FinancialSummary:
        return {financialSummary(figures, currencySign)};
    case PeriodReport::DaysUse:
        return {daysUse(figures)};
    case PeriodReport::ClientUsage:
        break;
    }
    const std::string top = formatted("The first %d clients", static_cast<int>(rankedClients));
    return {ranking(rankedByCash(figures.clients, rankedClients), top + " by cash", figures),
            ranking(rankedByDays(figures.clients, rankedClients),
                    top + " by " + (figures.perNight ? "nights" : "days"), figures)};
}

} // namespace purrlodge
