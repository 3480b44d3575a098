#include "print/RateCardPage.h"

#include <array>
#include <string>
#include <string_view>

#include "accounts/FeeCalculation.h"
#include "print/EstablishmentAddress.h"
#include "print/PrintBuffer.h"
#include "store/TextHelpers.h"

namespace purrlodge {

namespace {

constexpr unsigned char euroSign = 0x80;
constexpr std::string_view blank = " ";

// An amount after its currency sign, two decimals; "Other" has a blank sign,
// which is not printed.
std::string money(unsigned char sign, long double amount)
{
    return trim(formatted("%c%.2f", sign, static_cast<double>(amount)));
}

// The cattery as the account heads it: name, manager, address and contact.
void addEstablishmentHeading(PrintBuffer& buffer, const EstablishmentRecord& establishment)
{
    if (!establishment.name.isEmpty())
        buffer.add(establishment.name.str(), "0b, 8, 50, 2, u, 000, C");
    const std::string manager = trim(establishment.manager.str());
    if (!manager.empty())
        buffer.add("(" + manager + ")", "5b, 8, 0, 3, n, 000, C");
    addEstablishmentAddress(buffer, establishment);
}

} // namespace

void fillRateCard(PrintBuffer& buffer, const EstablishmentRecord& establishment,
                  const RatesRecord& rates, const ExchangeRateRecord& exchangeRate)
{
    buffer.clear();
    const unsigned char sign = currencySign(rates.currency.get());
    const bool perDay = chargesPerDay(rates);
    const float pencePerEuro = exchangeRate.pencePerEuro.get();
    const bool showEuros =
        rates.inSterling() && exchangeRate.showEuros.get() != 0 && pencePerEuro > 0.0f;
    const auto euros = [pencePerEuro](float amount) {
        return "(" + money(euroSign, static_cast<long double>(amount) * 100 / pencePerEuro) + ")";
    };

    buffer.add(blank, "0b, 20, 150, 2, n, 000, C");
    addEstablishmentHeading(buffer, establishment);
    buffer.add(blank, "3, 0, 100, 3, n, 000, C");
    buffer.add("Current Rates", "2b, 0, 0, 3, n, 000, C");
    buffer.add(perDay ? "Our daily rates, charged per day" : "Our rates, charged per night",
               "4, 0, 0, 3, n, 000, C");
    buffer.add(blank, "3, 0, 100, 3, n, 000, C");

    // Amounts end at a common right edge; each row's first text sets the
    // alignment back to the left.
    buffer.add("Cats", "3b, 9, 0, 1, n, 000, L");
    buffer.add(perDay ? "Per day" : "Per night", "3b, 20, -1, 1, n, 000, R");
    if (showEuros)
        buffer.add("In euros", "3b, 26, -1, 1, n, 000, R");
    bool anyRate = false;
    for (int cats = 1; cats <= 6; ++cats) {
        const float rate = rates.presentRate[cats - 1].get();
        if (rate <= 0.0f)
            continue;
        anyRate = true;
        buffer.add(cats == 1 ? "1 cat" : std::to_string(cats) + " cats", "3, 9, 40, 1, n, 000, L");
        buffer.add(money(sign, rate), "3, 20, -1, 1, n, 000, R");
        if (showEuros)
            buffer.add(euros(rate), "3, 26, -1, 1, n, 000, R");
    }
    if (!anyRate)
        buffer.add("No rates have been set.", "3, 9, 40, 1, n, 000, L");

    const std::string extraName = trim(rates.standardExtraName.str());
    const float extra = rates.standardExtraCharge.get();
    if (!extraName.empty() || extra > 0.0f) {
        buffer.add(blank, "3, 0, 100, 3, n, 000, L");
        buffer.add(extraName.empty() ? std::string("Standard extra") : extraName,
                   "3, 9, 0, 1, n, 000, L");
        buffer.add(money(sign, extra), "3, 20, -1, 1, n, 000, R");
        if (showEuros)
            buffer.add(euros(extra), "3, 26, -1, 1, n, 000, R");
    }
    if (showEuros) {
        buffer.add(blank, "3, 0, 100, 3, n, 000, L");
        buffer.add(
            formatted("Exchange rate %c1 = %.1fp", euroSign, static_cast<double>(pencePerEuro)),
            "4, 9, 0, 1, n, 000, L");
    }
}

} // namespace purrlodge
