#pragma once

#include <optional>
#include <string_view>

#include "accounts/ColourBlock.h"
#include "accounts/EstablishmentRecord.h"
#include "accounts/ExchangeRateRecord.h"
#include "accounts/RatesRecord.h"

namespace purrlodge {

class DataFolder;

// The cattery's own files in the data folder.
inline constexpr std::string_view establishmentFile = "NESTAB.DAT";
inline constexpr std::string_view colourBlockFile = "NESTAB.XAT";
inline constexpr std::string_view ratesFile = "NRATES.RTS";
inline constexpr std::string_view exchangeRateFile = "EURORATE.XCH";

// Each load clears the record and reads the whole file: a missing file leaves
// zeros. Each returns whether the file could be opened (or written).
bool loadEstablishment(const DataFolder& folder, EstablishmentRecord& establishment);
[[nodiscard]] bool saveEstablishment(const DataFolder& folder,
                                     const EstablishmentRecord& establishment);
bool loadColourBlock(const DataFolder& folder, ColourBlock& colours);
[[nodiscard]] bool saveColourBlock(const DataFolder& folder, const ColourBlock& colours);
bool loadRates(const DataFolder& folder, RatesRecord& rates);
[[nodiscard]] bool saveRates(const DataFolder& folder, const RatesRecord& rates);
bool loadExchangeRate(const DataFolder& folder, ExchangeRateRecord& exchangeRate);
[[nodiscard]] bool saveExchangeRate(const DataFolder& folder,
                                    const ExchangeRateRecord& exchangeRate);

// The manager's name's type size named by the display flags: the first of
// their characters in "1".."5", or nothing when they hold none.
[[nodiscard]] std::optional<int> managerTypeSizeOf(const EstablishmentRecord& establishment);

// Whether the rates carry a standard extra: false when the extra's name (the
// rates' one text field the person fills) is empty and its charge (the first
// value after the six present rates, which the earlier rates layout lacked) is
// zero, negative or not a number; true otherwise. This is the same test that
// makes a standard extra pending when an account is issued.
[[nodiscard]] bool ratesUsable(const RatesRecord& rates);

} // namespace purrlodge
