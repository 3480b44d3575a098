#include "accounts/StandardExtraSetup.h"

#include <string_view>

#include "accounts/CatteryFiles.h"
#include "accounts/FeeCalculation.h"
#include "app/Session.h"
#include "store/TextHelpers.h"

namespace purrlodge {

namespace {

constexpr std::size_t editLength = 23;

} // namespace

StandardExtraForm standardExtraFormFrom(const RatesRecord& rates)
{
    return {rates.standardExtraName.str(),
            formatted("%.2f", static_cast<double>(rates.standardExtraCharge.get()))};
}

FormVerdict acceptStandardExtraForm(Session& session, const StandardExtraForm& form)
{
    // Start from what is on disc, so that nothing else in memory is saved.
    RatesRecord onDisc{};
    if (loadRates(session.folder, onDisc))
        session.rates = onDisc;

    RatesRecord& rates = session.rates;
    rates.standardExtraName.set(std::string_view(form.name).substr(0, editLength));
    const std::string_view amount = std::string_view(form.amount).substr(0, editLength);
    rates.standardExtraCharge.set(toStoredFloat(leadingDouble(amount)));
    saveRates(session.folder, rates);
    return FormVerdict::Accept;
}

} // namespace purrlodge
