#pragma once

#include <string>

#include "accounts/ExchangeRateRecord.h"
#include "accounts/RatesRecord.h"
#include "ports/FormVerdict.h"

namespace purrlodge {

class DataFolder;

// Pound/Euro Exchange Rate (DIALOG 23), from Setup | Euro Exchange Rate.

struct ExchangeRateForm {
    std::string pencePerEuro; // edit 101 (hint "eg:  62.5")
    bool showEuros = false;   // 104 "Show Euros on Accounts"
};

// Whether Setup | Euro Exchange Rate can be chosen: only when the rates are in
// Sterling.
[[nodiscard]] bool euroExchangeRateEnabled(const RatesRecord& rates);

// The dialog's opening: the stored value with "%.02f" and the flag.
[[nodiscard]] ExchangeRateForm exchangeRateFormFrom(const ExchangeRateRecord& exchangeRate);

// OK: the edit (at most 11 characters) read atof-style becomes the pence per
// euro, the box the flag, and EURORATE.XCH is written. `exchangeRate` changes
// only when the file was written; otherwise the dialog stays open.
FormVerdict acceptExchangeRateForm(const ExchangeRateForm& form, ExchangeRateRecord& exchangeRate,
                                   const DataFolder& folder);

} // namespace purrlodge
