#include "accounts/FeeCalculation.h"

#include <climits>
#include <gtest/gtest.h>
#include <utility>

#include "store/CivilCalendar.h"
#include "support/Bytes.h"
#include "support/FakePorts.h"

namespace purrlodge {
namespace {

using testing::bytesOf;

const std::string pound = "\xA3";

std::int32_t utc(int day, int month, int hour)
{
    return static_cast<std::int32_t>(daysFromCivil(2005, month, day) * 86400 + hour * 3600);
}

class FeeCalculationTest : public ::testing::Test {
protected:
    FeeCalculationTest()
    {
        rates.perDay.set(1);
        rates.currency.set(2);
        entries.arrival = "01/03/05";
        entries.cats[0] = {true, "Tibbles"};
    }

    void setRate(int cats, float present, float previous)
    {
        rates.presentRate[cats - 1].set(present);
        rates.previousRate[cats - 1].set(previous);
    }

    AccountRecord compute(AccountRecord account = {})
    {
        EXPECT_TRUE(computeFee(entries, rates, exchange, clock, account).computed());
        return account;
    }

    RatesRecord rates{};
    ExchangeRateRecord exchange{};
    testing::FakeClock clock;
    FeeEntries entries;
};

// The whole record, byte for byte. Each stored amount is one rounding of its
// whole expression: float sums step by step would end the balance at 0.850000381.
TEST_F(FeeCalculationTest, SingleRateAccountIsStoredExactly)
{
    setRate(1, 5.0f, 4.0f); // differing rates, but the stay began after the change
    rates.rateChangeTime.set(utc(1, 2, 10));
    exchange.pencePerEuro.set(62.9f);
    entries.departure = "02/03/05";
    entries.extrasDescription = "Vet visit";
    entries.extrasAmount = "4.35";
    entries.creditAmount = "Deposit " + pound + "20";
    entries.discountPercentage = "10";
    entries.standardExtraAmount = pound + "7.50";
    entries.standardExtraCharged = true;
    AccountRecord account{};
    account.receiptNumber.set(4321); // fields the fee leaves alone
    account.filedTime.set(777);

    AccountRecord expected = account;
    expected.daysCharged.set(2);
    expected.catsBoarded.set(1);
    expected.standardExtraCharged.set(1);
    for (int box = 1; box < 6; ++box)
        expected.catNotBoarded[box].set(1);
    expected.arrivalDate.set("01/03/05");
    expected.departureDate.set("02/03/05");
    expected.catNames[0].set("Tibbles");
    expected.extrasDescription.set("Vet visit");
    expected.extrasAmount.set(4.35f);
    expected.discountPercentage.set(10.0f);
    expected.discountAmount.set(1.0f);
    expected.grossBoard.set(10.0f);
    expected.netBoard.set(9.0f);
    expected.finalBalance.set(0.849999905f);
    expected.creditAmount.set(20.0f);
    expected.euroEquivalent.set(1.35135114f);
    expected.rateUsed.set(5.0f);
    expected.pencePerEuroWhole.set(62); // cut, not rounded
    expected.currencySign = 0xA3;

    EXPECT_EQ(computeFee(entries, rates, exchange, clock, account).standardExtraAmount, 7.5f);
    EXPECT_EQ(bytesOf(account), bytesOf(expected));
}

// A split stay byte for byte, the cats boarded in box order. The dialog computes again into
// the same account after every change; nothing of the earlier result may survive.
TEST_F(FeeCalculationTest, SplitStayIsStoredExactlyRecomputedAfreshAndSplitOnlyWhenDue)
{
    setRate(1, 14.2f, 12.35f);
    setRate(2, 20.0f, 18.0f);
    rates.rateChangeTime.set(utc(10, 3, 10));
    entries.arrival = "08/03/05";
    entries.departure = "12/03/05";
    entries.cats[3] = {true, "Ginger"};
    AccountRecord expected{};
    expected.daysCharged.set(5);
    expected.catsBoarded.set(2);
    expected.daysAtOldRate.set(2);
    expected.daysAtNewRate.set(3);
    for (int box : {1, 2, 4, 5})
        expected.catNotBoarded[box].set(1);
    expected.arrivalDate.set("08/03/05");
    expected.departureDate.set("12/03/05");
    expected.oldRateEndDate.set("10/03/05");
    expected.newRateStartDate.set("10/03/05");
    expected.catNames[0].set("Tibbles");
    expected.catNames[1].set("Ginger");
    for (auto* amount : {&expected.grossBoard, &expected.netBoard, &expected.finalBalance})
        amount->set(96.0f);
    expected.boardAtOldRate.set(36.0f);
    expected.boardAtNewRate.set(60.0f);
    expected.oldRate.set(18.0f);
    expected.rateUsed.set(20.0f);
    expected.currencySign = 0xA3;
    EXPECT_EQ(bytesOf(compute()), bytesOf(expected));

    const FeeEntries splitStay = entries;
    for (const auto& change : {+[](FeeEntries& e) { e.arrival = "10/03/05"; }, // one rate
                               +[](FeeEntries& e) { e.cats[3].ticked = false; },
                               +[](FeeEntries& e) { std::swap(e.cats[0], e.cats[1]); }}) {
        entries = splitStay;
        const AccountRecord first = compute();
        change(entries);
        EXPECT_EQ(bytesOf(compute(first)), bytesOf(compute()));
    }

    // The change day goes at the new rate, per night less a night. Only whether the
    // arrival's noon came before the change counts; equal rates never split a stay.
    entries = splitStay;
    entries.cats[3].ticked = false;
    const auto split = [&](int day, int hour) {
        rates.rateChangeTime.set(utc(day, 3, hour));
        const AccountRecord account = compute();
        return std::pair(account.daysAtOldRate.get(), account.daysAtNewRate.get());
    };
    EXPECT_EQ(split(8, 13), std::pair(0, 5)) << "after the arrival's noon";
    EXPECT_EQ(split(8, 11), std::pair(0, 0)) << "before it";
    rates.perDay.set(2); // any unit but 1 charges per night
    EXPECT_EQ(split(10, 23), std::pair(2, 2));
    setRate(1, 12.35f, 12.35f);
    EXPECT_EQ(split(10, 10), std::pair(0, 0));
}

// A year of 2147483647 (19yy rules: 2147485547) is hundreds of billions of days
// away: the board charges them all, the 32-bit day fields hold the nearest count.
TEST_F(FeeCalculationTest, DamagedDatesChargeEveryDayAndStoreTheNearestCount)
{
    const std::int64_t farAhead = daysFromCivil(2147485547, 1, 1) - daysFromCivil(2005, 3, 1);
    setRate(1, 2.0f, 2.0f);
    entries.departure = "01/01/2147483647";
    EXPECT_EQ(chargedDays(entries.arrival, entries.departure, true), farAhead + 1);
    const AccountRecord oneRate = compute();
    EXPECT_EQ(oneRate.daysCharged.get(), INT32_MAX);
    EXPECT_EQ(oneRate.grossBoard.get(),
              toStoredFloat(2.0L * static_cast<long double>(farAhead + 1)));

    // Split at a change on 5 March, the departure as far back.
    setRate(1, 2.0f, 1.0f);
    rates.rateChangeTime.set(utc(5, 3, 10));
    entries.departure = "01/01/-2147483648";
    const AccountRecord split = compute();
    EXPECT_EQ(split.daysAtOldRate.get(), 4);
    EXPECT_EQ(split.daysAtNewRate.get(), INT32_MIN);
    EXPECT_EQ(split.daysCharged.get(), INT32_MIN);
    EXPECT_LT(split.grossBoard.get(), -1e12f);
}

TEST_F(FeeCalculationTest, DiscountsPoundSignsCurrenciesAndRefusal)
{
    setRate(1, 123.45f, 123.45f);
    entries.departure = "01/03/05";
    entries.discountPercentage = "10";
    // Each discount is one rounding of the widened double constant: 123.449997
    // less 12.3449993 is 111.104998.
    EXPECT_EQ(discountTestText(compute()),
              "10.00% discount on board fees of " + pound + "123.45  = " + pound +
                  "12.34\n\nBoarding fee would now be " + pound + "111.10");

    // 27% of 3 x 328.45: with the long double 0.01L it would be 266.044495.
    setRate(1, 328.45f, 328.45f);
    entries.departure = "03/03/05";
    entries.discountPercentage = "27";
    EXPECT_EQ(compute().discountAmount.get(), 266.044525f);

    EXPECT_EQ(chargedDays("01/03/05", "01/03/05", false), 0);
    EXPECT_EQ(amountAfterPoundSign("Deposit 20"), 0.0);
    EXPECT_EQ(amountAfterPoundSign(pound + "5 and " + pound + "7"), 5.0);
    entries.standardExtraAmount = pound + "7.50"; // and not charged
    const AccountRecord uncharged = compute();
    EXPECT_EQ(uncharged.finalBalance.get(), uncharged.netBoard.get());

    // No euro rate gives no equivalent; other currencies keep what the account held.
    AccountRecord held{};
    held.euroEquivalent.set(1.5f);
    held.pencePerEuroWhole.set(70);
    EXPECT_EQ(compute(held).euroEquivalent.get(), 0.0f);
    for (const auto& [currency, sign] :
         {std::pair<std::uint32_t, unsigned char>{0, 0x80}, {1, '$'}, {3, ' '}}) {
        rates.currency.set(currency);
        const AccountRecord other = compute(held);
        EXPECT_EQ(other.currencySign, sign);
        EXPECT_EQ(other.euroEquivalent.get(), 1.5f);
        EXPECT_EQ(other.pencePerEuroWhole.get(), 70);
    }

    AccountRecord account = held;
    entries.cats[0].ticked = false;
    EXPECT_EQ(computeFee(entries, rates, exchange, clock, account).refusal,
              (Message{"No Cats have been entered!", "Names no Ticked", MessageIcon::Exclamation}));
    EXPECT_EQ(bytesOf(account), bytesOf(held)) << "nothing written";
}

} // namespace
} // namespace purrlodge
