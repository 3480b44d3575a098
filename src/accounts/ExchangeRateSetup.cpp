#include "accounts/ExchangeRateSetup.h"

#include <string_view>

#include "accounts/CatteryFiles.h"
#include "accounts/FeeCalculation.h"
#include "store/TextHelpers.h"

namespace purrlodge {

namespace {

constexpr std::size_t rateEditLength = 11;

} // namespace

bool euroExchangeRateEnabled(const RatesRecord& rates)
{
    return rates.inSterling();
}

ExchangeRateForm exchangeRateFormFrom(const ExchangeRateRecord& exchangeRate)
{
    return {formatted("%.02f", static_cast<double>(exchangeRate.pencePerEuro.get())),
            exchangeRate.showEuros.get() != 0};
}

FormVerdict acceptExchangeRateForm(const ExchangeRateForm& form, ExchangeRateRecord& exchangeRate,
                                   const DataFolder& folder)
{
    const std::string_view typed = std::string_view(form.pencePerEuro).substr(0, rateEditLength);
    ExchangeRateRecord updated = exchangeRate;
    updated.pencePerEuro.set(toStoredFloat(leadingDouble(typed)));
    updated.showEuros.set(form.showEuros ? 1 : 0);
    if (!saveExchangeRate(folder, updated))
        return FormVerdict::StayOpen;
    exchangeRate = updated;
    return FormVerdict::Accept;
}

} // namespace purrlodge
