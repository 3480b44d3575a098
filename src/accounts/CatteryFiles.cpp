#include "accounts/CatteryFiles.h"

#include "store/DataFolder.h"

namespace purrlodge {

bool loadEstablishment(const DataFolder& folder, EstablishmentRecord& establishment)
{
    return folder.read(establishmentFile, establishment);
}

bool saveEstablishment(const DataFolder& folder, const EstablishmentRecord& establishment)
{
    return folder.write(establishmentFile, establishment);
}

bool loadColourBlock(const DataFolder& folder, ColourBlock& colours)
{
    return folder.read(colourBlockFile, colours);
}

bool saveColourBlock(const DataFolder& folder, const ColourBlock& colours)
{
    return folder.write(colourBlockFile, colours);
}

bool loadRates(const DataFolder& folder, RatesRecord& rates)
{
    return folder.read(ratesFile, rates);
}

bool saveRates(const DataFolder& folder, const RatesRecord& rates)
{
    return folder.write(ratesFile, rates);
}

bool loadExchangeRate(const DataFolder& folder, ExchangeRateRecord& exchangeRate)
{
    return folder.read(exchangeRateFile, exchangeRate);
}

bool saveExchangeRate(const DataFolder& folder, const ExchangeRateRecord& exchangeRate)
{
    return folder.write(exchangeRateFile, exchangeRate);
}

std::optional<int> managerTypeSizeOf(const EstablishmentRecord& establishment)
{
    for (const char c : establishment.displayFlags.str()) {
        if (c >= '1' && c <= '5')
            return c - '0';
    }
    return std::nullopt;
}

bool ratesUsable(const RatesRecord& rates)
{
    // Written as "not greater than zero" so that a NaN charge counts as unset.
    const bool noCharge = !(rates.standardExtraCharge.get() > 0.0f);
    return !(rates.standardExtraName.str().empty() && noCharge);
}

} // namespace purrlodge
