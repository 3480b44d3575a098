#pragma once

#include <array>
#include <cstdint>
#include <optional>
#include <string>
#include <string_view>

#include "accounts/AccountRecord.h"
#include "accounts/ExchangeRateRecord.h"
#include "accounts/RatesRecord.h"
#include "ports/Message.h"

namespace purrlodge {

class Clock;

// The boarding fee of one stay, worked out from the Account Preparation
// dialog (DIALOG 8) into the money and day fields of the account. It runs when
// the dialog opens, on "Press to register any Change", on "Test Discount" and
// on OK.
//
// Every amount is a 32-bit float. Each stored value is worked out in extended
// precision (long double) from the values already stored and rounded to float
// once, when it is stored; nothing is rounded to pennies.

// One of the dialog's six cat check boxes (109..114) and the name beside it.
struct CatBox {
    bool ticked = false;
    std::string name;
};

// The dialog's entries the fee reads, as typed (Windows-1252 text).
struct FeeEntries {
    std::string arrival;   // "dd/mm/yy"
    std::string departure; // "dd/mm/yy"
    std::array<CatBox, 6> cats;
    std::string extrasDescription;   // 103
    std::string creditDescription;   // 104
    std::string discountDescription; // 105
    std::string extrasAmount;        // 106
    std::string creditAmount;        // 107 (text after the first pound sign when it has one)
    std::string discountPercentage;  // 108
    std::string standardExtraAmount; // 151 (see standardExtraAmountFrom)
    bool standardExtraCharged = false;
};

// The outcome of a fee computation.
struct FeeResult {
    // "No Cats have been entered!": no box is ticked and nothing was computed.
    std::optional<Message> refusal;
    // The standard extra amount read from the entries for this account (the
    // account record does not keep it); 0 when nothing was computed.
    float standardExtraAmount = 0.0f;

    [[nodiscard]] bool computed() const { return !refusal; }
};

// Rounds an extended-precision result (or a typed amount) to the float that is
// stored. A value past the float range becomes an infinity, as the hardware
// gives, instead of an undefined conversion.
[[nodiscard]] float toStoredFloat(long double value);

// The currency sign byte of a currency: 0x80 (euro), '$', 0xA3 (pound) or a
// blank for "Other" and any unknown value.
[[nodiscard]] unsigned char currencySign(std::uint32_t currency);

// Whether the rates charge per day (charging unit 1); any other unit charges
// per night.
[[nodiscard]] bool chargesPerDay(const RatesRecord& rates);

// The days (or nights) charged for a stay: arrival and departure day both
// count, and per night one less. The account's day fields hold the count
// clamped to 32 bits; the board is charged for the whole count.
[[nodiscard]] std::int64_t chargedDays(std::string_view arrival, std::string_view departure,
                                       bool perDay);

// The amount of an entry that may carry a pound sign: the text after the first
// 0xA3 byte when there is one, else the whole text, read atof-style.
[[nodiscard]] double amountAfterPoundSign(std::string_view text);

// Works the fee out into `account`. Writes the cats boarded, the arrival and
// departure texts, the day counts and rates (split across a rate change when
// the stay began before it and the two rates for the number of cats differ),
// the currency sign, the descriptions, extras, credit, discount, net board,
// final balance, the standard-extra flag and, for Sterling only, the euro
// equivalent and the whole-pence rate. Receipt number, omit flags and filed
// time are left alone. With no cat ticked, nothing at all is written.
[[nodiscard]] FeeResult computeFee(const FeeEntries& entries, const RatesRecord& rates,
                                   const ExchangeRateRecord& exchangeRate, const Clock& clock,
                                   AccountRecord& account);

// ---- Texts the dialog shows ----

// "%d %s" with "days" or "nights" (static 115).
[[nodiscard]] std::string chargedDaysText(int days, bool perDay);

// "Basic Board Charge %c%.2f" with the gross board (static 117).
[[nodiscard]] std::string basicBoardChargeText(const AccountRecord& account);

// The Discount Calculation dialog's text (DIALOG 9, static 101): the
// percentage, the gross board, the discount and what the board comes to.
[[nodiscard]] std::string discountTestText(const AccountRecord& account);

} // namespace purrlodge
