#include "print/RateCardPage.h"

#include <gtest/gtest.h>

#include "print/PrintBuffer.h"

namespace purrlodge {
namespace {

using Lines = std::vector<std::string>;

// "\243" is the pound sign and "\200" the euro sign of Windows-1252.

class RateCardPageTest : public ::testing::Test {
protected:
    RateCardPageTest()
    {
        establishment.name.set("Whiskers Lodge");
        establishment.address[0].set("Mill Lane");
        establishment.address[3].set("Upton UP1 2CD");
        establishment.telephone.set("01234 567890");
        const float daily[6] = {12.5f, 20.0f, 27.0f, 0.0f, 0.0f, 40.0f};
        for (int cats = 0; cats < 6; ++cats)
            rates.presentRate[cats].set(daily[cats]);
        rates.currency.set(static_cast<std::uint32_t>(Currency::Sterling));
        rates.perDay.set(1);
        rates.standardExtraName.set("Heating");
        rates.standardExtraCharge.set(1.5f);
        euro.pencePerEuro.set(85.0f);
        euro.showEuros.set(1);
    }

    Lines card()
    {
        fillRateCard(buffer, establishment, rates, euro);
        return Lines(buffer.texts.begin(), buffer.texts.begin() + buffer.count);
    }

    EstablishmentRecord establishment{};
    RatesRecord rates{};
    ExchangeRateRecord euro{};
    PrintBuffer buffer;
};

const Lines heading{" ", "Whiskers Lodge", "Mill Lane", "Upton UP1 2CD", "Tel: 01234 567890  ",
                    " ", "Current Rates"};

Lines withHeading(const Lines& rest)
{
    Lines lines = heading;
    lines.insert(lines.end(), rest.begin(), rest.end());
    return lines;
}

TEST_F(RateCardPageTest, InSterlingEachAmountHasItsEuroEquivalentWhileEurosAreShown)
{
    EXPECT_EQ(card(), withHeading({"Our daily rates, charged per day",
                                   " ",
                                   "Cats",
                                   "Per day",
                                   "In euros",
                                   "1 cat",
                                   "\24312.50",
                                   "(\20014.71)",
                                   "2 cats",
                                   "\24320.00",
                                   "(\20023.53)",
                                   "3 cats",
                                   "\24327.00",
                                   "(\20031.76)",
                                   "6 cats",
                                   "\24340.00",
                                   "(\20047.06)",
                                   " ",
                                   "Heating",
                                   "\2431.50",
                                   "(\2001.76)",
                                   " ",
                                   "Exchange rate \2001 = 85.0p"}));
    // Amounts end at one right edge; each row starts again from the left.
    EXPECT_EQ(buffer.formats[12], "3, 9, 40, 1, n, 000, L");
    EXPECT_EQ(buffer.formats[13], "3, 20, -1, 1, n, 000, R");
    EXPECT_EQ(buffer.formats[14], "3, 26, -1, 1, n, 000, R");
}

TEST_F(RateCardPageTest, EurosAreLeftOutWhenOffOrWithNoRateSet)
{
    const Lines sterlingOnly = withHeading(
        {"Our daily rates, charged per day", " ", "Cats", "Per day", "1 cat", "\24312.50", "2 cats",
         "\24320.00", "3 cats", "\24327.00", "6 cats", "\24340.00", " ", "Heating", "\2431.50"});
    euro.showEuros.set(0);
    EXPECT_EQ(card(), sterlingOnly);
    euro.showEuros.set(1);
    euro.pencePerEuro.set(0.0f);
    EXPECT_EQ(card(), sterlingOnly);
}

TEST_F(RateCardPageTest, OtherCurrenciesPerNightShowNoEurosAndOnlyTheRatesSet)
{
    rates.currency.set(static_cast<std::uint32_t>(Currency::Other));
    rates.perDay.set(0);
    rates.presentRate[1].set(0.0f);
    rates.presentRate[2].set(0.01f);
    rates.standardExtraName.set("");
    rates.standardExtraCharge.set(0.0f);
    EXPECT_EQ(card(), withHeading({"Our rates, charged per night", " ", "Cats", "Per night",
                                   "1 cat", "12.50", "3 cats", "0.01", "6 cats", "40.00"}));

    rates.currency.set(static_cast<std::uint32_t>(Currency::Euros));
    rates.standardExtraCharge.set(2.0f);
    const Lines euros = card();
    EXPECT_EQ(euros[12], "\20012.50");
    EXPECT_EQ(Lines(euros.end() - 3, euros.end()), (Lines{" ", "Standard extra", "\2002.00"}));

    for (auto& rate : rates.presentRate)
        rate.set(0.0f);
    EXPECT_EQ(card()[11], "No rates have been set.");
}

} // namespace
} // namespace purrlodge
