// Bytes as a stay record ("<code>.TXI", 1049 bytes), then the rates
// (NRATES.RTS, 473 bytes), then the exchange rate (EURORATE.XCH, 8 bytes):
// the readers, the fee the account preparation works out from the stay's
// dates and texts, its texts, the standard extra's controls, the account
// date checks, and the arrival form over the stay.

#include <cstddef>
#include <cstdint>
#include <string>

#include "accounts/AccountDateChecks.h"
#include "accounts/CatteryFiles.h"
#include "accounts/FeeCalculation.h"
#include "accounts/StandardExtra.h"
#include "clients/ArrivalForm.h"
#include "fuzz/FuzzSupport.h"
#include "store/ClientFiles.h"
#include "store/DataFolder.h"
#include "support/FakePorts.h"

namespace {

using namespace purrlodge;

constexpr std::string_view code = "SMITHANN";

// The dialog's entries as the stay holds them: its dates, its ticked cats and
// its text lines standing for the amounts typed.
FeeEntries entriesOf(const StayRecord& stay)
{
    FeeEntries entries;
    entries.arrival = stay.arrivalDate.str();
    entries.departure = stay.departureDate.str();
    for (int slot = 0; slot < catSlotCount; ++slot)
        entries.cats[static_cast<std::size_t>(slot)] = {stay.catInStay[slot].get() != 0,
                                                        "Cat " + std::to_string(slot + 1)};
    entries.extrasDescription = stay.arrivalRemark.str();
    entries.creditDescription = stay.departureRemark.str();
    entries.discountDescription = stay.furtherLines[3].str();
    entries.extrasAmount = stay.textLine1.str();
    entries.creditAmount = stay.textLine2.str();
    entries.discountPercentage = stay.furtherLines[0].str();
    entries.standardExtraAmount = stay.furtherLines[1].str();
    entries.standardExtraCharged = stay.standardExtraChosen[0].get() != 0;
    return entries;
}

} // namespace

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size)
{
    static fuzzing::FuzzFolder temp;
    temp.reset();
    fuzzing::Pieces pieces(data, size);
    temp.put(std::string(code) + ".TXI", pieces.take(sizeof(StayRecord)));
    temp.put(ratesFile, pieces.take(sizeof(RatesRecord)));
    temp.put(exchangeRateFile, pieces.take(sizeof(ExchangeRateRecord)));

    testing::FakeUi ui;
    testing::FakeClock clock;
    clock.setUtc(2024, 6, 15);
    DataFolder folder(temp.path(), ui);

    StayRecord stay;
    RatesRecord rates;
    ExchangeRateRecord exchangeRate;
    readStayRecord(folder, code, stay);
    loadRates(folder, rates);
    loadExchangeRate(folder, exchangeRate);

    // The fee as the dialog opens, and again over the account it left, as a
    // press of "register any Change" does.
    const FeeEntries entries = entriesOf(stay);
    AccountRecord account{};
    for (int pass = 0; pass < 2; ++pass) {
        const FeeResult fee = computeFee(entries, rates, exchangeRate, clock, account);
        static_cast<void>(fee.computed());
    }
    static_cast<void>(chargedDaysText(account.daysCharged.get(), chargesPerDay(rates)));
    static_cast<void>(basicBoardChargeText(account));
    static_cast<void>(discountTestText(account));
    static_cast<void>(chargedDays(entries.arrival, entries.departure, chargesPerDay(rates)));

    StandardExtraControls controls = openingStandardExtra(rates);
    static_cast<void>(standardExtraDecisionMissing(rates, controls));
    chooseStandardExtra(controls, entries.standardExtraCharged);
    static_cast<void>(standardExtraAmountFrom(controls.amountText));

    // The date checks of OK, first with no earlier entry, then after it.
    DateEntryState state;
    for (int pass = 0; pass < 2; ++pass)
        static_cast<void>(checkAccountDates(entries.arrival, entries.departure, 2024, state,
                                            stay.dialogText.str(), rates));

    // The arrival form over the stay, and the stay record it comes back to.
    ClientRecord client{};
    client.catName[0].set("Tibbles");
    client.catName[2].set("Felix");
    client.catBirthYear[2].set(stay.number.get());
    EstablishmentRecord establishment{};
    establishment.vaccinationYears.set(stay.arrivalRemark.str());
    ArrivalForm form = openArrivalForm(client, stay, establishment, rates, clock,
                                       sheetsFromSetting(stay.departureRemark.str()));
    form.arrival = stay.arrivalDate.str();
    form.departure = stay.departureDate.str();
    static_cast<void>(stayLengthText(form.arrival, form.departure, rates));
    static_cast<void>(stayRecordOf(form, client, rates, stay, clock));
    return 0;
}
