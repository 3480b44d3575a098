#pragma once

#include <array>
#include <optional>
#include <string>

#include "accounts/AccountDateChecks.h"
#include "accounts/AccountRecord.h"
#include "accounts/ExchangeRateRecord.h"
#include "accounts/FeeCalculation.h"
#include "accounts/RatesRecord.h"
#include "accounts/StandardExtra.h"
#include "ports/Message.h"
#include "store/ClientRecord.h"
#include "store/Dates.h"
#include "store/StayRecord.h"

namespace purrlodge {

class Clock;

// Account Preparation (DIALOG 8): what the dialog shows and what the person
// types into it. The dialog keeps the entries as typed; the fee is worked out
// from them by AccountPreparation.
struct AccountPreparationForm {
    std::string clientLine;                  // static 145: title, first name and surname
    std::string arrival;                     // static 101 (changed through Alter Dates)
    std::string departure;                   // static 102
    std::array<CatBox, catSlotCount> cats;   // boxes 109..114 with names 122..127
    std::array<bool, catSlotCount> catShown; // a box is shown for each cat the client has
    std::string receiptNumber;               // edit 131
    std::string extrasDescription;           // 103
    std::string extrasAmount;                // 106
    std::string creditDescription;           // 104
    std::string creditAmount;                // 107
    std::string discountDescription;         // 105
    std::string discountPercentage;          // 108
    StandardExtraControls standardExtra;     // 147, 149, 150, 151
    bool insertNamesLine = false;            // 148 "Insert Mews' Names"
    bool omitTopSheet = false;               // 133
    bool omitCopy = false;                   // 134
    std::string additionalNotes;             // 137 (at most 120 characters)
    bool hasSpecialNotes = false;            // 139 shown: the client has a note book
};

inline constexpr std::size_t additionalNotesLimit = 120;

// The dialog as it opens for the client. The stay's dates and the cats ticked
// come from the stay record; a stay record that names no dates gives the
// client record's current stay, and one that ticks no cat ticks every cat the
// client has (a stay booked without choosing cats takes them all). The
// receipt number offered is `receiptOffer`; the additional notes start as the
// rates' account note; the names line starts as the printing options set it.
[[nodiscard]] AccountPreparationForm
openAccountPreparation(const ClientRecord& client, const StayRecord& stay, const RatesRecord& rates,
                       int receiptOffer, bool hasNoteBook, bool namesLineOn);

// The fee's entries in the form.
[[nodiscard]] FeeEntries feeEntriesOf(const AccountPreparationForm& form);

// What a computation shows: the count (static 115), the basic board charge
// (static 117) and the text of the Discount Calculation (DIALOG 9).
struct ChargeTexts {
    std::optional<Message> refusal; // no dates, or "Names no Ticked": nothing was computed
    std::string count;
    std::string basicBoardCharge;
    std::string discountTest;
};

// The computations behind the dialog's buttons, each working the fee out into
// the account in preparation without committing anything to disc.
class AccountPreparation {
public:
    AccountPreparation(const RatesRecord& rates, const ExchangeRateRecord& exchangeRate,
                       const Clock& clock, int currentYear, DateEntryState& dates,
                       AccountRecord& account)
        : rates_(rates), exchangeRate_(exchangeRate), clock_(clock), currentYear_(currentYear),
          dates_(dates), account_(account)
    {}

    // The opening computation, "Press to register any Change" and "Test
    // Discount": the account worked out from the entries as they stand.
    // Refused while either date is missing, or while no cat is ticked.
    [[nodiscard]] ChargeTexts recompute(const AccountPreparationForm& form);

    // "Register Change" of New Dates for Account (DIALOG 47). A four-digit
    // year is shortened as the count check does and both dates are checked
    // as OK checks them (a stay longer than three weeks is asked about by OK,
    // not here). When they pass, the form takes them in "dd/mm/yy" form and
    // the account is worked out again; otherwise the form is left alone and
    // the check says what to show in Apparent Date Error (DIALOG 16).
    [[nodiscard]] AccountDatesCheck alterDates(AccountPreparationForm& form, std::string arrival,
                                               std::string departure);

private:
    const RatesRecord& rates_;
    const ExchangeRateRecord& exchangeRate_;
    const Clock& clock_;
    int currentYear_;
    DateEntryState& dates_;
    AccountRecord& account_;
};

// The receipt number typed in edit 131 (atoi); a number below 1 would mark an
// empty slot of the book, so OK refuses it with this message.
[[nodiscard]] int receiptNumberOf(const AccountPreparationForm& form);
[[nodiscard]] std::optional<Message> receiptNumberProblem(const AccountPreparationForm& form);

} // namespace purrlodge
