#include "accounts/StandardExtra.h"

#include "accounts/FeeCalculation.h"
#include "store/TextHelpers.h"

namespace purrlodge {

namespace {

constexpr std::size_t amountEditLength = 7;

} // namespace

bool standardExtraPending(const RatesRecord& rates)
{
    return !rates.standardExtraName.isEmpty() || rates.standardExtraCharge.get() > 0.0f;
}

StandardExtraControls openingStandardExtra(const RatesRecord& rates)
{
    StandardExtraControls controls;
    const unsigned char sign = currencySign(rates.currency.get());
    if (rates.standardExtraName.isEmpty()) {
        controls.amountText = formatted("%c0.00", sign);
    } else {
        controls.buttonsVisible = true;
        controls.nameAndAmountVisible = true;
        controls.nameText = rates.standardExtraName.str();
        controls.amountText =
            formatted("%c%.2f", sign, static_cast<double>(rates.standardExtraCharge.get()));
    }
    return controls;
}

void chooseStandardExtra(StandardExtraControls& controls, bool charged)
{
    controls.nameAndAmountVisible = charged;
    controls.yesTicked = charged;
    controls.noTicked = !charged;
    controls.charged = charged;
}

std::optional<Message> standardExtraDecisionMissing(const RatesRecord& rates,
                                                    const StandardExtraControls& controls)
{
    if (!standardExtraPending(rates) || controls.yesTicked || controls.noTicked)
        return std::nullopt;
    return Message{"No Decison made for Sandard Extras", "Data Omission", MessageIcon::None};
}

float standardExtraAmountFrom(std::string_view amountText)
{
    std::string_view text = amountText.substr(0, amountEditLength);
    // The edit shows the amount after the currency's own sign. The pound sign
    // has always been skipped; a leading euro or dollar sign is skipped too, so
    // that an amount left as shown reads back unchanged in every currency.
    const std::size_t first = text.find_first_not_of(' ');
    if (first != std::string_view::npos && (text[first] == '$' || text[first] == '\x80'))
        text.remove_prefix(first + 1);
    return toStoredFloat(amountAfterPoundSign(text));
}

} // namespace purrlodge
