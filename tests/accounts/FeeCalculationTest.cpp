#include "accounts/FeeCalculation.h"

#include <gtest/gtest.h>

#include "app/Session.h"
#include "store/CivilCalendar.h"
#include "store/ClientFiles.h"
#include "support/Bytes.h"
#include "support/FakePorts.h"
#include "support/TempFolder.h"

namespace purrlodge {
namespace {

using testing::bytesOf;

const std::string pound = "\xA3";

std::int32_t utc(int day, int month, int hour)
{
    return static_cast<std::int32_t>(daysFromCivil(2005, month, day) * 86400 + hour * 3600);
}

// One rounding of an extended-precision expression, as the fee stores it.
float once(long double value)
{
    return static_cast<float>(value);
}

class FeeCalculationTest : public ::testing::Test {
protected:
    FeeCalculationTest()
    {
        rates.perDay.set(1);
        rates.currency.set(2);
        setRate(1, 12.35f, 12.35f);
        entries.arrival = "01/03/05";
        entries.departure = "03/03/05";
        entries.cats[0] = {true, "Tibbles"};
        before.receiptNumber.set(4321); // fields the fee leaves alone
        before.filedTime.set(777);
    }

    void setRate(int cats, float present, float previous)
    {
        rates.presentRate[cats - 1].set(present);
        rates.previousRate[cats - 1].set(previous);
    }

    AccountRecord compute()
    {
        AccountRecord account = before;
        EXPECT_TRUE(computeFee(entries, rates, exchange, clock, account).computed());
        return account;
    }

    RatesRecord rates{};
    ExchangeRateRecord exchange{};
    testing::FakeClock clock;
    FeeEntries entries;
    AccountRecord before{};
};

TEST_F(FeeCalculationTest, DaysAndNightsCountBothEndsOfTheStay)
{
    EXPECT_EQ(compute().daysCharged.get(), 3);
    EXPECT_EQ(compute().grossBoard.get(), 3 * 12.35f);
    rates.perDay.set(0);
    EXPECT_EQ(compute().daysCharged.get(), 2);
    entries.departure = "01/03/05";
    EXPECT_EQ(compute().daysCharged.get(), 0);
    EXPECT_EQ(compute().grossBoard.get(), 0.0f);
    rates.perDay.set(1);
    EXPECT_EQ(compute().daysCharged.get(), 1);
    EXPECT_EQ(chargedDaysText(2, false), "2 nights");
}

// The whole record, byte for byte. Every stored value is one rounding of its
// expression; here the final balance differs from float step-by-step sums.
TEST_F(FeeCalculationTest, SingleRateAccountIsStoredExactly)
{
    setRate(2, 5.0f, 4.0f); // differing rates, but the stay began after the change
    rates.rateChangeTime.set(utc(1, 2, 10));
    exchange.pencePerEuro.set(62.5f);
    entries.departure = "02/03/05";
    entries.cats = {CatBox{false, "Tibbles"}, {true, "Ginger"}, {false, "Paws"}, {true, "Smudge"}};
    entries.extrasDescription = "Vet visit";
    entries.extrasAmount = "4.35";
    entries.creditAmount = "Deposit " + pound + "20";
    entries.discountPercentage = "10";
    entries.standardExtraAmount = pound + "7.50";
    entries.standardExtraCharged = true;
    before.catNames[2].set("Stale");
    before.daysAtOldRate.set(9);

    AccountRecord expected = before;
    expected.daysCharged.set(2);
    expected.catsBoarded.set(2);
    expected.daysAtOldRate.set(0);
    expected.standardExtraCharged.set(1);
    for (int box : {0, 2, 4, 5})
        expected.catNotBoarded[box].set(1);
    expected.arrivalDate.set("01/03/05");
    expected.departureDate.set("02/03/05");
    expected.catNames[0].set("Ginger");
    expected.catNames[1].set("Smudge");
    expected.catNames[2].clear();
    expected.extrasDescription.set("Vet visit");
    expected.extrasAmount.set(4.35f);
    expected.discountPercentage.set(10.0f);
    expected.discountAmount.set(once(static_cast<long double>(0.01) * 10.0f * 10.0f));
    expected.grossBoard.set(10.0f);
    expected.netBoard.set(9.0f);
    const float beforeExtra = once(10.0L - 1.0f + 4.35f - 20.0f);
    ASSERT_NE(beforeExtra, 10.0f - 1.0f + 4.35f - 20.0f);
    expected.finalBalance.set(once(static_cast<long double>(7.5f) + beforeExtra));
    expected.creditAmount.set(20.0f);
    expected.euroEquivalent.set(
        once(static_cast<long double>(expected.finalBalance.get()) * 100 / 62.5f));
    expected.rateUsed.set(5.0f);
    expected.pencePerEuroWhole.set(62);
    expected.currencySign = 0xA3;

    AccountRecord account = before;
    EXPECT_EQ(computeFee(entries, rates, exchange, clock, account).standardExtraAmount, 7.5f);
    EXPECT_EQ(bytesOf(account), bytesOf(expected));
}

// The change day is charged at the new rate; per night, the new-rate part
// loses the night. Only whether the arrival's noon came before the change counts.
TEST_F(FeeCalculationTest, StayIsSplitAcrossARateChange)
{
    setRate(1, 14.2f, 12.35f);
    entries.arrival = "08/03/05";
    entries.departure = "12/03/05";
    struct Case {
        int day, hour, perDay, oldDays, newDays;
    };
    for (const Case c : {Case{10, 10, 1, 2, 3},
                         {10, 10, 0, 2, 2},
                         {10, 0, 1, 2, 3},
                         {10, 23, 1, 2, 3},
                         {8, 13, 1, 0, 5}}) {
        SCOPED_TRACE(::testing::Message() << c.day << "/03 " << c.hour << ":00 " << c.perDay);
        rates.rateChangeTime.set(utc(c.day, 3, c.hour));
        rates.perDay.set(c.perDay);
        const AccountRecord split = compute();
        EXPECT_EQ(split.daysAtOldRate.get(), c.oldDays);
        EXPECT_EQ(split.daysAtNewRate.get(), c.newDays);
        EXPECT_EQ(split.daysCharged.get(), c.oldDays + c.newDays);
        EXPECT_EQ(split.oldRateEndDate.str(), split.newRateStartDate.str());
        EXPECT_EQ(split.newRateStartDate.str(), c.day == 10 ? "10/03/05" : "08/03/05");
        EXPECT_EQ(split.boardAtOldRate.get(), once(c.oldDays * static_cast<long double>(12.35f)));
        EXPECT_EQ(split.grossBoard.get(),
                  once(static_cast<long double>(split.boardAtOldRate.get()) + c.newDays * 14.2f));
        EXPECT_EQ(split.oldRate.get(), 12.35f);
        EXPECT_EQ(split.rateUsed.get(), 14.2f);
    }

    // Arrival after the change, or equal rates for the cats boarded: one rate.
    rates.rateChangeTime.set(utc(8, 3, 11));
    EXPECT_EQ(compute().oldRate.get(), 0.0f);
    rates.rateChangeTime.set(utc(10, 3, 10));
    setRate(1, 12.35f, 12.35f);
    setRate(2, 14.2f, 12.35f);
    const AccountRecord single = compute();
    EXPECT_EQ(single.daysAtOldRate.get(), 0);
    EXPECT_TRUE(single.oldRateEndDate.isEmpty());
    EXPECT_EQ(single.grossBoard.get(), 5 * 12.35f);
}

TEST_F(FeeCalculationTest, DiscountIsOneRoundingOfTheWidenedDoubleConstant)
{
    setRate(1, 123.45f, 123.45f);
    entries.departure = "01/03/05";
    entries.discountPercentage = "10";
    const AccountRecord tenPercent = compute();
    const float discount = once(static_cast<long double>(0.01) * 10.0f * 123.45f);
    EXPECT_EQ(tenPercent.discountAmount.get(), discount);
    EXPECT_EQ(tenPercent.netBoard.get(), once(static_cast<long double>(123.45f) - discount));
    // 123.449997 less 12.3449993 is 111.104998.
    EXPECT_EQ(discountTestText(tenPercent),
              "10.00% discount on board fees of " + pound + "123.45  = " + pound +
                  "12.34\n\nBoarding fee would now be " + pound + "111.10");
    EXPECT_EQ(basicBoardChargeText(tenPercent), "Basic Board Charge " + pound + "123.45");

    // 27% of 3 x 328.45: the widened double 0.01 and 0.01L round differently.
    setRate(1, 328.45f, 328.45f);
    entries.departure = "03/03/05";
    entries.discountPercentage = "27";
    const float expected = once(static_cast<long double>(0.01) * 27.0f * (3 * 328.45f));
    ASSERT_NE(expected, once(0.01L * 27.0f * (3 * 328.45f)));
    EXPECT_EQ(compute().discountAmount.get(), expected);
}

TEST_F(FeeCalculationTest, CreditTakesTheTextAfterAPoundSignAndTheExtraIsAddedWhenCharged)
{
    for (const auto& [typed, credit] :
         {std::pair<std::string, float>{"Deposit " + pound + "20", 20},
          {"20", 20},
          {"Deposit 20", 0},
          {pound + "5 and " + pound + "7", 5}}) {
        entries.creditAmount = typed;
        EXPECT_EQ(compute().creditAmount.get(), credit) << typed;
    }
    entries.standardExtraAmount = pound + "7.50";
    const float board = compute().finalBalance.get();
    entries.standardExtraCharged = true;
    EXPECT_EQ(compute().finalBalance.get(), once(7.5L + board));
}

TEST_F(FeeCalculationTest, EuroEquivalentOnlyForSterlingAndNeverDividedByZero)
{
    before.euroEquivalent.set(1.5f);
    before.pencePerEuroWhole.set(70);
    exchange.pencePerEuro.set(62.9f);
    const AccountRecord sterling = compute();
    EXPECT_EQ(sterling.euroEquivalent.get(),
              once(static_cast<long double>(sterling.finalBalance.get()) * 100 / 62.9f));
    EXPECT_EQ(sterling.pencePerEuroWhole.get(), 62);
    exchange.pencePerEuro.set(0.0f);
    EXPECT_EQ(compute().euroEquivalent.get(), 0.0f);

    for (const auto& [currency, sign] :
         {std::pair<std::uint32_t, unsigned char>{0, 0x80}, {1, '$'}, {3, ' '}}) {
        rates.currency.set(currency);
        const AccountRecord account = compute();
        EXPECT_EQ(account.currencySign, sign);
        EXPECT_EQ(account.euroEquivalent.get(), 1.5f); // kept as it was
        EXPECT_EQ(account.pencePerEuroWhole.get(), 70);
    }
}

TEST_F(FeeCalculationTest, SessionComputesIntoTheClientAndCommitsBothDatePairs)
{
    testing::TempFolder temp;
    testing::FakePorts fakes;
    Session session(fakes.ports(), temp.path());
    session.rates = rates;
    session.client.code.set("SMITHANN");
    session.stay.arrivalRemark.set("by car");

    ASSERT_TRUE(computeAccount(session, entries).computed());
    EXPECT_EQ(session.account.grossBoard.get(), 3 * 12.35f);
    EXPECT_EQ(session.client.departureDate.str(), "03/03/05");
    EXPECT_TRUE(session.client.lastOutDate.isEmpty());
    commitAccountDates(session);
    ClientRecord client{};
    StayRecord stay{};
    ASSERT_TRUE(readClientRecord(session.folder, "SMITHANN", client));
    ASSERT_TRUE(readStayRecord(session.folder, "SMITHANN", stay));
    EXPECT_EQ(client.lastInDate.str() + client.lastOutDate.str(), "01/03/0503/03/05");
    EXPECT_EQ(stay.arrivalRemark.str(), "by car");

    // No cat ticked: the message, and the account and client untouched.
    entries.cats[0].ticked = false;
    entries.arrival = "02/03/05";
    const AccountRecord computed = session.account;
    EXPECT_FALSE(computeAccount(session, entries).computed());
    EXPECT_EQ(fakes.ui.messages,
              (std::vector<Message>{
                  {"No Cats have been entered!", "Names no Ticked", MessageIcon::Exclamation}}));
    EXPECT_EQ(bytesOf(session.account), bytesOf(computed));
    EXPECT_EQ(session.client.arrivalDate.str(), "01/03/05");
}

} // namespace
} // namespace purrlodge
