#include "accounts/FeeCalculation.h"

#include <algorithm>
#include <cfloat>
#include <climits>
#include <cmath>
#include <limits>

#include "accounts/StandardExtra.h"
#include "ports/Clock.h"
#include "store/Dates.h"
#include "store/TextHelpers.h"

namespace purrlodge {

namespace {

constexpr unsigned char euroSign = 0x80;
constexpr unsigned char poundSign = 0xA3;

// Truncation toward zero, kept inside the int range (a NaN gives 0) so that a
// damaged rate never makes the conversion undefined.
std::int32_t truncated(float value)
{
    if (std::isnan(value))
        return 0;
    if (value >= 2147483648.0f)
        return INT_MAX;
    if (value < -2147483648.0f)
        return INT_MIN;
    return static_cast<std::int32_t>(value);
}

// The local date of the rate change as "%02d/%02d/%02d"; the year is the
// calendar year less 2000 (the C library's year count less 100), so a change
// before 2000 shows a negative year, as it always has.
std::string rateChangeDateText(std::int64_t changeTime, const Clock& clock)
{
    const CivilTime local = clock.toLocal(changeTime);
    return formatted("%02d/%02d/%02d", local.day, local.month, local.year - 1900 - 100);
}

// A day count as the account's 32-bit field holds it: the nearest value it can.
std::int32_t storedDays(std::int64_t days)
{
    return static_cast<std::int32_t>(std::clamp<std::int64_t>(days, INT32_MIN, INT32_MAX));
}

int countCats(const FeeEntries& entries)
{
    int count = 0;
    for (const CatBox& box : entries.cats)
        count += box.ticked ? 1 : 0;
    return count;
}

// The boarded cats' flags and names, the names listed in box order.
void fillCats(const FeeEntries& entries, AccountRecord& account)
{
    int listed = 0;
    for (std::size_t box = 0; box < entries.cats.size(); ++box) {
        const CatBox& cat = entries.cats[box];
        account.catNotBoarded[box].set(cat.ticked ? 0 : 1);
        if (cat.ticked)
            account.catNames[listed++].set(cat.name);
    }
    // A recomputation with fewer cats must not leave an earlier list's names.
    for (int slot = listed; slot < 6; ++slot)
        account.catNames[slot].clear();
    account.catsBoarded.set(listed);
}

// The board charge, split across a rate change or at one rate.
void fillBoard(const FeeEntries& entries, const RatesRecord& rates, int cats,
               const std::string& changeDate, AccountRecord& account)
{
    const bool perDay = chargesPerDay(rates);
    const float presentRate = rates.presentRate[cats - 1].get();
    const float previousRate = rates.previousRate[cats - 1].get();

    // Only the arrival is compared with the change: a stay that ended before
    // the change but began before it too is still split (and may count
    // negative new-rate days).
    const bool split =
        dateToNumber(entries.arrival) < rates.rateChangeTime.get() && presentRate != previousRate;
    if (split) {
        // The change day itself is charged at the new rate, and the per-night
        // deduction falls on the new-rate part.
        const std::int64_t oldDays = dayCount(entries.arrival, changeDate) - 1;
        const std::int64_t newDays = dayCount(changeDate, entries.departure) - (perDay ? 0 : 1);
        account.oldRateEndDate.set(changeDate);
        account.newRateStartDate.set(changeDate);
        account.daysAtOldRate.set(storedDays(oldDays));
        account.daysAtNewRate.set(storedDays(newDays));
        account.boardAtOldRate.set(toStoredFloat(static_cast<long double>(oldDays) * previousRate));
        account.boardAtNewRate.set(toStoredFloat(static_cast<long double>(newDays) * presentRate));
        account.grossBoard.set(toStoredFloat(
            static_cast<long double>(account.boardAtOldRate.get()) + account.boardAtNewRate.get()));
        account.oldRate.set(previousRate);
        account.rateUsed.set(presentRate);
        account.daysCharged.set(storedDays(oldDays + newDays));
        return;
    }

    // One rate: the split fields are cleared so that a stay whose dates were
    // altered after a split computes exactly as a fresh account would.
    const std::int64_t days = chargedDays(entries.arrival, entries.departure, perDay);
    account.oldRateEndDate.clear();
    account.newRateStartDate.clear();
    account.daysAtOldRate.set(0);
    account.daysAtNewRate.set(0);
    account.boardAtOldRate.set(0.0f);
    account.boardAtNewRate.set(0.0f);
    account.oldRate.set(0.0f);
    account.daysCharged.set(storedDays(days));
    account.rateUsed.set(presentRate);
    account.grossBoard.set(toStoredFloat(static_cast<long double>(days) * presentRate));
}

// The adjustments, in their order: extras, credit, discount, net board, final
// balance, standard extra, euro equivalent.
void fillAdjustments(const FeeEntries& entries, const RatesRecord& rates,
                     const ExchangeRateRecord& exchangeRate, float standardExtra,
                     AccountRecord& account)
{
    account.extrasAmount.set(toStoredFloat(leadingDouble(entries.extrasAmount)));
    account.extrasDescription.set(entries.extrasDescription);
    account.creditDescription.set(entries.creditDescription);
    account.discountDescription.set(entries.discountDescription);
    account.creditAmount.set(toStoredFloat(amountAfterPoundSign(entries.creditAmount)));
    account.discountPercentage.set(toStoredFloat(leadingDouble(entries.discountPercentage)));

    const long double gross = account.grossBoard.get();
    // 0.01 is the double constant, widened: not the long double 0.01L.
    account.discountAmount.set(
        toStoredFloat(static_cast<long double>(0.01) * account.discountPercentage.get() * gross));
    const long double discount = account.discountAmount.get();
    account.netBoard.set(toStoredFloat(gross - discount));
    account.finalBalance.set(
        toStoredFloat(gross - discount + account.extrasAmount.get() - account.creditAmount.get()));
    account.standardExtraCharged.set(entries.standardExtraCharged ? 1 : 0);
    if (entries.standardExtraCharged)
        account.finalBalance.set(
            toStoredFloat(static_cast<long double>(standardExtra) + account.finalBalance.get()));

    if (!rates.inSterling())
        return; // other currencies keep whatever the account held
    const float pencePerEuro = exchangeRate.pencePerEuro.get();
    // No euro rate set: the equivalent stays 0 rather than an infinity.
    account.euroEquivalent.set(
        pencePerEuro == 0.0f ? 0.0f
                             : toStoredFloat(static_cast<long double>(account.finalBalance.get()) *
                                             100 / pencePerEuro));
    account.pencePerEuroWhole.set(truncated(pencePerEuro));
}

} // namespace

float toStoredFloat(long double value)
{
    if (value > FLT_MAX)
        return std::numeric_limits<float>::infinity();
    if (value < -FLT_MAX)
        return -std::numeric_limits<float>::infinity();
    return static_cast<float>(value);
}

unsigned char currencySign(std::uint32_t currency)
{
    switch (static_cast<Currency>(currency)) {
    case Currency::Euros:
        return euroSign;
    case Currency::Dollars:
        return '$';
    case Currency::Sterling:
        return poundSign;
    case Currency::Other:
        break;
    }
    return ' ';
}

bool chargesPerDay(const RatesRecord& rates)
{
    return rates.perDay.get() == 1;
}

std::int64_t chargedDays(std::string_view arrival, std::string_view departure, bool perDay)
{
    return dayCount(arrival, departure) - (perDay ? 0 : 1);
}

double amountAfterPoundSign(std::string_view text)
{
    const std::size_t pound = text.find(static_cast<char>(poundSign));
    return leadingDouble(pound == std::string_view::npos ? text : text.substr(pound + 1));
}

FeeResult computeFee(const FeeEntries& entries, const RatesRecord& rates,
                     const ExchangeRateRecord& exchangeRate, const Clock& clock,
                     AccountRecord& account)
{
    const int cats = countCats(entries);
    if (cats == 0)
        return {Message{"No Cats have been entered!", "Names no Ticked", MessageIcon::Exclamation},
                0.0f};
    fillCats(entries, account);

    account.arrivalDate.set(entries.arrival);
    account.departureDate.set(entries.departure);
    const std::string changeDate = rateChangeDateText(rates.rateChangeTime.get(), clock);

    fillBoard(entries, rates, cats, changeDate, account);
    account.currencySign = currencySign(rates.currency.get());

    const float standardExtra = standardExtraAmountFrom(entries.standardExtraAmount);
    fillAdjustments(entries, rates, exchangeRate, standardExtra, account);
    return {std::nullopt, standardExtra};
}

std::string chargedDaysText(int days, bool perDay)
{
    return formatted("%d %s", days, perDay ? "days" : "nights");
}

std::string basicBoardChargeText(const AccountRecord& account)
{
    return formatted("Basic Board Charge %c%.2f", account.currencySign,
                     static_cast<double>(account.grossBoard.get()));
}

std::string discountTestText(const AccountRecord& account)
{
    const unsigned char sign = account.currencySign;
    const float gross = account.grossBoard.get();
    const float discount = account.discountAmount.get();
    const double boardAfterDiscount =
        static_cast<double>(static_cast<long double>(gross) - discount);
    return formatted("%01.2f%% discount on board fees of %c%01.2f  = %c%01.2f\n\nBoarding fee "
                     "would now be %c%01.2f",
                     static_cast<double>(account.discountPercentage.get()), sign,
                     static_cast<double>(gross), sign, static_cast<double>(discount), sign,
                     boardAfterDiscount);
}

} // namespace purrlodge
