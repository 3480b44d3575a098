#pragma once

#include <cstdint>
#include <string>
#include <vector>

#include "store/ClientIndex.h"

namespace purrlodge {

class DataFolder;

// The figures of one calendar month of a period. Money is in hundredths of
// the currency's main unit (pence or cents), each stored amount rounded to
// the nearest hundredth before it is added, so every sum is exact.
struct MonthFigures {
    int year = 0;  // four digits
    int month = 0; // 1..12
    // Days of the month inside the period: the whole month but at the
    // period's ends.
    int daysInPeriod = 0;
    int accounts = 0;
    std::int64_t board = 0; // gross board
    std::int64_t discounts = 0;
    std::int64_t extras = 0;
    std::int64_t credits = 0;
    std::int64_t balances = 0; // final balances (the standard extras included)
    // Days (or nights) charged times cats boarded.
    std::int64_t catDays = 0;

    friend bool operator==(const MonthFigures&, const MonthFigures&) = default;
};

// What one client's accounts of the period add up to.
struct ClientUsage {
    std::string code;
    std::string name; // title, first name and surname as the client record holds them
    int accounts = 0;
    std::int64_t cash = 0; // final balances, in hundredths
    std::int64_t catDays = 0;

    friend bool operator==(const ClientUsage&, const ClientUsage&) = default;
};

// The three period reports' figures. An account belongs to the period by
// its arrival date, both ends of the period counted; its whole stay counts
// in the month it arrived.
struct PeriodFigures {
    std::int64_t firstDay = 0; // date numbers (noon of the day)
    std::int64_t lastDay = 0;
    bool perNight = false; // as the rates charge: cat-nights rather than cat-days
    // Every month the period touches, oldest first, those without accounts too.
    std::vector<MonthFigures> months;
    MonthFigures totals; // year and month 0; daysInPeriod the period's length
    // Every client with an account in the period, in the index's order.
    std::vector<ClientUsage> clients;
};

// Reads every current client's account book (unsafe codes and books that
// cannot be read are skipped) and adds up the accounts that arrived from
// `firstDay` to `lastDay`. Damaged counts are clamped: days to 0..9999,
// cats to 0..6, amounts beyond a hundred million to 0.
[[nodiscard]] PeriodFigures gatherPeriodFigures(const DataFolder& folder, const ClientIndex& index,
                                                std::int64_t firstDay, std::int64_t lastDay,
                                                bool perNight);

// An amount held as a float, in hundredths, rounded to the nearest.
[[nodiscard]] std::int64_t hundredthsOf(float amount);

// Average cats in residence per day of the month, in hundredths.
[[nodiscard]] std::int64_t occupancyHundredths(const MonthFigures& month);

// The first `count` clients, most cash first; equal cash keeps index order.
[[nodiscard]] std::vector<ClientUsage> rankedByCash(const std::vector<ClientUsage>& clients,
                                                    std::size_t count);

// The first `count` clients, most cat-days first; equal days keep index order.
[[nodiscard]] std::vector<ClientUsage> rankedByDays(const std::vector<ClientUsage>& clients,
                                                    std::size_t count);

// "Mar 2025": a month's short label for tables and charts.
[[nodiscard]] std::string monthLabel(const MonthFigures& month);

// "1234.50" or "-3.05": hundredths as money without a sign byte.
[[nodiscard]] std::string moneyText(std::int64_t hundredths);

} // namespace purrlodge
