#include <gtest/gtest.h>

#include "accounts/AccountDateChecks.h"
#include "accounts/StandardExtra.h"

namespace purrlodge {
namespace {

const std::string pound = "\xA3";

// What OK of Account Preparation checks before computing.
TEST(AccountOkChecks, StandardExtraNeedsADecisionAndDateErrorsNameTheirDate)
{
    RatesRecord rates{};
    rates.currency.set(2);
    EXPECT_FALSE(standardExtraDecisionMissing(rates, openingStandardExtra(rates)));
    rates.standardExtraCharge.set(3.0f); // a charge but no name: no buttons to press
    StandardExtraControls controls = openingStandardExtra(rates);
    EXPECT_FALSE(controls.buttonsVisible);
    EXPECT_EQ(*standardExtraDecisionMissing(rates, controls),
              (Message{"No Decison made for Sandard Extras", "Data Omission", MessageIcon::None}));

    rates.standardExtraName.set("Grooming");
    controls = openingStandardExtra(rates);
    EXPECT_EQ(controls.amountText, pound + "3.00");
    chooseStandardExtra(controls, false);
    EXPECT_FALSE(standardExtraDecisionMissing(rates, controls));
    chooseStandardExtra(controls, true);
    EXPECT_TRUE(controls.yesTicked && controls.charged && !controls.noTicked);

    EXPECT_EQ(standardExtraAmountFrom(pound + "12.34567"), 12.345f) << "seven characters";
    // An amount left as the edit shows it reads back in every currency.
    EXPECT_EQ(standardExtraAmountFrom("$3.00"), 3.0f);
    EXPECT_EQ(standardExtraAmountFrom("\x80" + std::string("4.50")), 4.5f);

    // Date errors name their date, the note is taken between the checks, and
    // more than 21 days asks.
    DateEntryState state;
    const auto check = [&](const char* arrival, const char* departure) {
        return checkAccountDates(arrival, departure, 2005, state, "Thank you", rates);
    };
    AccountDatesCheck result = check("30/02/05", "03/03/05");
    EXPECT_EQ(result.verdict, AccountDatesVerdict::ApparentDateError);
    EXPECT_EQ(result.dateLabel, "Arrival/Start date");
    EXPECT_TRUE(rates.accountNote.isEmpty());
    result = check("01/03/07", "03/03/07"); // two years ahead
    EXPECT_EQ(result.verdict, AccountDatesVerdict::ApparentDateError);
    EXPECT_EQ(result.code, DateYearWrong);

    result = check("05/03/05", "03/03/05");
    EXPECT_EQ(result.code, DateDepartureBeforeArrival);
    EXPECT_EQ(rates.accountNote.str(), "Thank you");

    EXPECT_EQ(check("01/03/05", "22/03/05").verdict, AccountDatesVerdict::GoOn);
    result = check("01/03/05", "23/03/05");
    EXPECT_EQ(result.verdict, AccountDatesVerdict::AskLongStay);
    EXPECT_EQ(result.code, DateStayTooLong);
    EXPECT_EQ(result.message, "More than 3 weeks?");
}

} // namespace
} // namespace purrlodge
