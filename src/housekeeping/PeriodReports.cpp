#include "housekeeping/PeriodReports.h"

#include <algorithm>
#include <cmath>

#include "accounts/AccountFiling.h"
#include "store/CivilCalendar.h"
#include "store/ClientCode.h"
#include "store/ClientFiles.h"
#include "store/ClientRecord.h"
#include "store/DataFolder.h"
#include "store/Dates.h"
#include "store/TextHelpers.h"

namespace purrlodge {

namespace {

constexpr std::int64_t maxDaysCharged = 9999;
constexpr std::int64_t maxCatsBoarded = 6;
constexpr double maxAmount = 1e8;

std::int64_t clamped(std::int64_t value, std::int64_t high)
{
    return std::clamp<std::int64_t>(value, 0, high);
}

// Months since year 0, so that a date's month indexes the period's months.
std::int64_t monthNumber(std::int64_t year, int month)
{
    return year * 12 + (month - 1);
}

std::vector<MonthFigures> monthsOf(std::int64_t firstDay, std::int64_t lastDay)
{
    std::vector<MonthFigures> months;
    const CivilTime first = civilFromSeconds(firstDay);
    const CivilTime last = civilFromSeconds(lastDay);
    for (std::int64_t number = monthNumber(first.year, first.month);
         number <= monthNumber(last.year, last.month); ++number) {
        MonthFigures month;
        month.year = static_cast<int>(number / 12);
        month.month = static_cast<int>(number % 12) + 1;
        const std::int64_t start =
            std::max(firstDay,
                     daysFromCivil(month.year, month.month, 1) * secondsPerDay + secondsPerDay / 2);
        const std::int64_t end =
            std::min(lastDay, daysFromCivil(month.year, month.month,
                                            monthLength(month.month, isLeapYear(month.year))) *
                                      secondsPerDay +
                                  secondsPerDay / 2);
        month.daysInPeriod = static_cast<int>((end - start) / secondsPerDay + 1);
        months.push_back(month);
    }
    return months;
}

void addAccount(MonthFigures& figures, const AccountRecord& account, std::int64_t catDays)
{
    ++figures.accounts;
    figures.board += hundredthsOf(account.grossBoard.get());
    figures.discounts += hundredthsOf(account.discountAmount.get());
    figures.extras += hundredthsOf(account.extrasAmount.get());
    figures.credits += hundredthsOf(account.creditAmount.get());
    figures.balances += hundredthsOf(account.finalBalance.get());
    figures.catDays += catDays;
}

std::string clientName(const DataFolder& folder, const IndexEntry& entry)
{
    ClientRecord client;
    if (!readClientRecord(folder, entry.code.str(), client))
        return entry.key.str();
    // Parts left empty leave no double blank behind.
    std::string name;
    for (const std::string& part :
         {trim(client.style.str()), trim(client.firstName.str()), trim(client.surname.str())})
        if (!part.empty())
            name += (name.empty() ? "" : " ") + part;
    return name.empty() ? entry.key.str() : name;
}

template <class Measure>
std::vector<ClientUsage> ranked(const std::vector<ClientUsage>& clients, std::size_t count,
                                Measure measure)
{
    std::vector<ClientUsage> order = clients;
    std::stable_sort(order.begin(), order.end(), [&](const ClientUsage& a, const ClientUsage& b) {
        return measure(a) > measure(b);
    });
    if (order.size() > count)
        order.resize(count);
    return order;
}

} // namespace

std::int64_t hundredthsOf(float amount)
{
    const double value = amount;
    if (!std::isfinite(value) || std::fabs(value) > maxAmount)
        return 0;
    return std::llround(value * 100.0);
}

std::int64_t occupancyHundredths(const MonthFigures& month)
{
    if (month.daysInPeriod <= 0)
        return 0;
    return (month.catDays * 100 + month.daysInPeriod / 2) / month.daysInPeriod;
}

PeriodFigures gatherPeriodFigures(const DataFolder& folder, const ClientIndex& index,
                                  std::int64_t firstDay, std::int64_t lastDay, bool perNight)
{
    PeriodFigures figures;
    figures.firstDay = firstDay;
    figures.lastDay = lastDay;
    figures.perNight = perNight;
    if (lastDay < firstDay)
        return figures;
    figures.months = monthsOf(firstDay, lastDay);
    figures.totals.daysInPeriod = static_cast<int>((lastDay - firstDay) / secondsPerDay + 1);
    const CivilTime first = civilFromSeconds(firstDay);
    const std::int64_t firstMonth = monthNumber(first.year, first.month);

    AccountBook book;
    for (int entry = 1; entry <= index.usedCount(); ++entry) {
        const std::string code = index.entries[entry].code.str();
        if (!isSafeClientCode(code) || !readAccountBook(folder, code, book))
            continue;
        ClientUsage usage;
        for (const AccountRecord& account : book.accounts) {
            if (account.receiptNumber.get() == 0)
                continue;
            const std::int64_t arrival = dateToNumber(account.arrivalDate.str());
            if (arrival < firstDay || arrival > lastDay)
                continue;
            const CivilTime day = civilFromSeconds(arrival);
            const auto month =
                static_cast<std::size_t>(monthNumber(day.year, day.month) - firstMonth);
            const std::int64_t catDays = clamped(account.daysCharged.get(), maxDaysCharged) *
                                         clamped(account.catsBoarded.get(), maxCatsBoarded);
            addAccount(figures.months[month], account, catDays);
            addAccount(figures.totals, account, catDays);
            ++usage.accounts;
            usage.cash += hundredthsOf(account.finalBalance.get());
            usage.catDays += catDays;
        }
        if (usage.accounts == 0)
            continue;
        usage.code = code;
        usage.name = clientName(folder, index.entries[entry]);
        figures.clients.push_back(std::move(usage));
    }
    return figures;
}

std::vector<ClientUsage> rankedByCash(const std::vector<ClientUsage>& clients, std::size_t count)
{
    return ranked(clients, count, [](const ClientUsage& c) { return c.cash; });
}

std::vector<ClientUsage> rankedByDays(const std::vector<ClientUsage>& clients, std::size_t count)
{
    return ranked(clients, count, [](const ClientUsage& c) { return c.catDays; });
}

std::string monthLabel(const MonthFigures& month)
{
    return std::string(monthName(month.month).substr(0, 3)) + " " + std::to_string(month.year);
}

std::string moneyText(std::int64_t hundredths)
{
    const std::int64_t whole = hundredths / 100;
    const std::int64_t part = hundredths % 100;
    return formatted("%s%lld.%02lld", hundredths < 0 ? "-" : "",
                     static_cast<long long>(whole < 0 ? -whole : whole),
                     static_cast<long long>(part < 0 ? -part : part));
}

} // namespace purrlodge
