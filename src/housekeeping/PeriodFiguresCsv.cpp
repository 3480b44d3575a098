#include "housekeeping/PeriodFiguresCsv.h"

#include <cstdio>

namespace purrlodge {

namespace {

std::string csvLine(const std::string& label, const MonthFigures& month)
{
    return label + "," + std::to_string(month.daysInPeriod) + "," + std::to_string(month.accounts) +
           "," + moneyText(month.board) + "," + moneyText(month.discounts) + "," +
           moneyText(month.extras) + "," + moneyText(month.credits) + "," +
           moneyText(month.balances) + "," + std::to_string(month.catDays) + "," +
           moneyText(occupancyHundredths(month)) + "\n";
}

} // namespace

std::string periodFiguresCsv(const PeriodFigures& figures)
{
    std::string csv = std::string("Month,Days in period,Accounts,Board,Discounts,Extras,Credits,"
                                  "Balances,") +
                      (figures.perNight ? "Cat-nights" : "Cat-days") + ",Average cats per day\n";
    for (const MonthFigures& month : figures.months) {
        char label[16];
        std::snprintf(label, sizeof label, "%04d-%02d", month.year, month.month);
        csv += csvLine(label, month);
    }
    return csv + csvLine("Total", figures.totals);
}

} // namespace purrlodge
