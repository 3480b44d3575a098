#include "accounts/RatesSetup.h"

#include "accounts/CatteryFiles.h"
#include "accounts/FeeCalculation.h"
#include "ports/Clock.h"
#include "store/Dates.h"
#include "store/TextHelpers.h"

namespace purrlodge {

namespace {

constexpr std::size_t rateEditLength = 7;
constexpr std::uint32_t currencyButtons = 4;

std::string rateText(float rate)
{
    return formatted("%.2f", static_cast<double>(rate));
}

// "<prefix>%d:%d<middle>%d %s, %d": hour and minute unpadded, the day, the
// month's full name and the four-digit year.
std::string momentText(const char* format, const CivilTime& at)
{
    return formatted(format, at.hour, at.minute, at.day, std::string(monthName(at.month)).c_str(),
                     at.year);
}

} // namespace

RatesForm ratesFormFrom(const RatesRecord& rates, const Clock& clock)
{
    RatesForm form;
    for (std::size_t cats = 0; cats < 6; ++cats) {
        form.presentRate[cats] = rateText(rates.presentRate[cats].get());
        form.previousRate[cats] = rateText(rates.previousRate[cats].get());
    }
    if (rates.currency.get() < currencyButtons)
        form.currency = rates.currency.get();
    form.perDay = chargesPerDay(rates);
    form.updatePreviousRates = false;
    form.todayText = momentText("Today: %d:%d - %d %s, %d", clock.toLocal(clock.now()));
    form.previousSetText = momentText("'Previous' set: at %d:%d on %d %s, %d",
                                      clock.toLocal(rates.rateChangeTime.get()));
    return form;
}

RatesForm openRatesForm(RatesRecord& rates, const DataFolder& folder, const Clock& clock)
{
    RatesRecord onDisc{};
    if (loadRates(folder, onDisc))
        rates = onDisc;
    return ratesFormFrom(rates, clock);
}

FormVerdict acceptRatesForm(const RatesForm& form, RatesRecord& saved, const DataFolder& folder,
                            const Clock& clock)
{
    RatesRecord rates = saved;
    // The stamp is a 32-bit count of seconds, as the file holds it.
    const auto now = static_cast<std::int32_t>(clock.now());
    if (form.updatePreviousRates)
        rates.rateChangeTime.set(now);
    rates.perDay.set(form.perDay ? 1 : 0);
    if (form.updatePreviousRates) {
        for (std::size_t cats = 0; cats < 6; ++cats)
            rates.previousRate[cats] = rates.presentRate[cats];
    }
    for (std::size_t cats = 0; cats < 6; ++cats) {
        const std::string_view typed =
            std::string_view(form.presentRate[cats]).substr(0, rateEditLength);
        rates.presentRate[cats].set(toStoredFloat(leadingDouble(typed)));
    }
    // The first rates ever saved have no earlier ones to compare with.
    if (rates.previousRate[0].get() == 0.0f) {
        for (std::size_t cats = 0; cats < 6; ++cats)
            rates.previousRate[cats] = rates.presentRate[cats];
    }
    if (form.currency && *form.currency < currencyButtons)
        rates.currency.set(*form.currency);
    if (!saveRates(folder, rates))
        return FormVerdict::StayOpen;
    saved = rates;
    return FormVerdict::Accept;
}

} // namespace purrlodge
