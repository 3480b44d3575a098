#include "accounts/StandardExtraSetup.h"

#include <string_view>

#include "accounts/CatteryFiles.h"
#include "accounts/FeeCalculation.h"
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

FormVerdict acceptStandardExtraForm(const StandardExtraForm& form, RatesRecord& rates,
                                    const DataFolder& folder)
{
    // Start from what is on disc, so that nothing else in memory is saved.
    RatesRecord onDisc{};
    if (loadRates(folder, onDisc))
        rates = onDisc;

    RatesRecord updated = rates;
    updated.standardExtraName.set(std::string_view(form.name).substr(0, editLength));
    const std::string_view amount = std::string_view(form.amount).substr(0, editLength);
    updated.standardExtraCharge.set(toStoredFloat(leadingDouble(amount)));
    if (!saveRates(folder, updated))
        return FormVerdict::StayOpen;
    rates = updated;
    return FormVerdict::Accept;
}

} // namespace purrlodge
