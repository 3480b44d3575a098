#include "accounts/ExchangeRateSetup.h"

#include <string_view>

#include "accounts/CatteryFiles.h"
#include "accounts/FeeCalculation.h"
#include "app/Session.h"
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

FormVerdict acceptExchangeRateForm(Session& session, const ExchangeRateForm& form)
{
    const std::string_view typed = std::string_view(form.pencePerEuro).substr(0, rateEditLength);
    session.exchangeRate.pencePerEuro.set(toStoredFloat(leadingDouble(typed)));
    session.exchangeRate.showEuros.set(form.showEuros ? 1 : 0);
    saveExchangeRate(session.folder, session.exchangeRate);
    return FormVerdict::Accept;
}

} // namespace purrlodge
