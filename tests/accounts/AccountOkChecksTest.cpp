#include <gtest/gtest.h>

#include "accounts/AccountDateChecks.h"
#include "accounts/StandardExtra.h"

namespace purrlodge {
namespace {

const std::string pound = "\xA3";

// What OK of Account Preparation checks before computing: the standard-extra
// decision and the stay's dates.

TEST(StandardExtraTest, PendingExtraNeedsADecisionEvenWhenItsButtonsAreHidden)
{
    RatesRecord rates{};
    rates.currency.set(2);
    EXPECT_FALSE(standardExtraDecisionMissing(rates, openingStandardExtra(rates)));

    rates.standardExtraCharge.set(3.0f); // a charge but no name: no buttons to press
    StandardExtraControls controls = openingStandardExtra(rates);
    EXPECT_FALSE(controls.buttonsVisible);
    EXPECT_EQ(controls.amountText, pound + "0.00");
    EXPECT_EQ(*standardExtraDecisionMissing(rates, controls),
              (Message{"No Decison made for Sandard Extras", "Data Omission", MessageIcon::None}));

    rates.standardExtraName.set("Grooming");
    controls = openingStandardExtra(rates);
    EXPECT_TRUE(controls.buttonsVisible && controls.nameAndAmountVisible);
    EXPECT_EQ(controls.amountText, pound + "3.00");
    chooseStandardExtra(controls, false);
    EXPECT_FALSE(controls.nameAndAmountVisible || controls.charged);
    EXPECT_FALSE(standardExtraDecisionMissing(rates, controls));
    chooseStandardExtra(controls, true);
    EXPECT_TRUE(controls.yesTicked && controls.charged && !controls.noTicked);

    EXPECT_EQ(standardExtraAmountFrom(pound + "12.34567"), 12.345f) << "seven characters";
    // An amount left as the edit shows it reads back in every currency.
    EXPECT_EQ(standardExtraAmountFrom("$3.00"), 3.0f);
    EXPECT_EQ(standardExtraAmountFrom(std::string("\x80") + "4.50"), 4.5f);
    EXPECT_EQ(standardExtraAmountFrom("Extra 3"), 0.0f);
}

class AccountDateChecksTest : public ::testing::Test {
protected:
    AccountDatesCheck check(const std::string& arrival, const std::string& departure)
    {
        return checkAccountDates(arrival, departure, 2005, state, "Thank you", rates,
                                 [this](std::string_view question) {
                                     questions.emplace_back(question);
                                     return answerRight;
                                 });
    }

    DateEntryState state;
    RatesRecord rates{};
    bool answerRight = true;
    std::vector<std::string> questions;
};

TEST_F(AccountDateChecksTest, LongStayIsAskedAfterTwentyOneDays)
{
    EXPECT_EQ(check("01/03/05", "22/03/05").verdict, AccountDatesVerdict::GoOn);
    EXPECT_TRUE(questions.empty());

    EXPECT_EQ(check("01/03/05", "23/03/05").verdict, AccountDatesVerdict::GoOn);
    EXPECT_EQ(questions, std::vector<std::string>{"More than 3 weeks?"});
    answerRight = false;
    EXPECT_EQ(check("01/03/05", "23/03/05").verdict, AccountDatesVerdict::LongStayWrong);
}

TEST_F(AccountDateChecksTest, DateErrorsNameTheDateAndTheNoteIsTakenBetweenTheChecks)
{
    AccountDatesCheck result = check("30/02/05", "03/03/05");
    EXPECT_EQ(result.verdict, AccountDatesVerdict::ApparentDateError);
    EXPECT_EQ(result.message, "The date does not exist in that month !");
    EXPECT_EQ(result.dateLabel, "Arrival/Start date");
    EXPECT_TRUE(rates.accountNote.isEmpty());

    result = check("05/03/05", "03/03/05");
    EXPECT_EQ(result.code, DateDepartureBeforeArrival);
    EXPECT_EQ(result.dateLabel, "Departure/End date");
    EXPECT_EQ(rates.accountNote.str(), "Thank you");
}

} // namespace
} // namespace purrlodge
