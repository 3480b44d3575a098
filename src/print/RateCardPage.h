#pragma once

#include "accounts/EstablishmentRecord.h"
#include "accounts/ExchangeRateRecord.h"
#include "accounts/RatesRecord.h"

namespace purrlodge {

struct PrintBuffer;

// The rate card, one page: the cattery's name and address, the daily rates
// for one to six cats in the rates' currency, per day or per night as the
// rates charge, the standard extra, and beside each amount its euro
// equivalent when the rates are in Sterling and euros are shown at a rate
// that is set. A number of cats whose rate is not set (0 or less) is left
// out.
void fillRateCard(PrintBuffer& buffer, const EstablishmentRecord& establishment,
                  const RatesRecord& rates, const ExchangeRateRecord& exchangeRate);

} // namespace purrlodge
