#include "accounts/RatesSetup.h"

#include <gtest/gtest.h>

#include "accounts/CatteryFiles.h"
#include "app/Session.h"
#include "support/Bytes.h"
#include "support/FakePorts.h"
#include "support/TempFolder.h"

namespace purrlodge {
namespace {

class RatesSetupTest : public ::testing::Test {
protected:
    RatesSetupTest()
    {
        fakes.clock.setUtc(2010, 3, 1, 14, 7);
        for (std::size_t cats = 0; cats < 6; ++cats) {
            established.presentRate[cats].set(10.0f + static_cast<float>(cats));
            established.previousRate[cats].set(9.0f + static_cast<float>(cats));
        }
        established.currency.set(2);
        established.perDay.set(1);
        established.rateChangeTime.set(1240477500); // 09:05 on 23 April 2009
    }

    RatesForm formWithPresent(std::array<std::string, 6> present, bool yes)
    {
        RatesForm form = ratesFormFrom(session.rates, fakes.clock);
        form.presentRate = present;
        form.updatePreviousRates = yes;
        return form;
    }

    // What NRATES.RTS holds, so every check is also a check of the file.
    RatesRecord saved()
    {
        RatesRecord onDisc{};
        EXPECT_TRUE(loadRates(session.folder, onDisc));
        EXPECT_EQ(testing::bytesOf(onDisc), testing::bytesOf(session.rates));
        return onDisc;
    }

    testing::TempFolder temp;
    testing::FakePorts fakes;
    Session session{fakes.ports(), temp.path()};
    RatesRecord established{};
};

TEST_F(RatesSetupTest, OpeningRereadsTheFileAndShowsUnpaddedMoments)
{
    ASSERT_TRUE(saveRates(session.folder, established));
    session.rates.presentRate[0].set(99.0f);

    const RatesForm form = openRatesForm(session);
    EXPECT_EQ(session.rates.presentRate[0].get(), 10.0f);
    EXPECT_EQ(form.presentRate[5], "15.00");
    EXPECT_EQ(form.previousRate[0], "9.00");
    EXPECT_EQ(form.currency, 2u);
    EXPECT_TRUE(form.perDay);
    EXPECT_FALSE(form.updatePreviousRates);
    EXPECT_EQ(form.todayText, "Today: 14:7 - 1 March, 2010");
    EXPECT_EQ(form.previousSetText, "'Previous' set: at 9:5 on 23 April, 2009");
}

TEST_F(RatesSetupTest, FirstSaveMakesThePresentRatesThePreviousOnesWhateverTheChoice)
{
    for (const bool yes : {false, true}) {
        session.rates = RatesRecord{};
        ASSERT_EQ(acceptRatesForm(
                      session, formWithPresent({"8.5", "", "abc", "12.3456789", "14", "16"}, yes)),
                  FormVerdict::Accept);
        const RatesRecord rates = saved();
        EXPECT_EQ(rates.presentRate[0].get(), 8.5f);
        EXPECT_EQ(rates.presentRate[1].get(), 0.0f); // empty field
        EXPECT_EQ(rates.presentRate[2].get(), 0.0f);
        EXPECT_EQ(rates.presentRate[3].get(), 12.3456f); // seven characters read
        for (std::size_t cats = 0; cats < 6; ++cats)
            EXPECT_EQ(rates.previousRate[cats].get(), rates.presentRate[cats].get()) << yes;
    }
}

TEST_F(RatesSetupTest, YesMovesTheOldPresentRatesToPreviousAndStampsTheTime)
{
    const std::array<std::string, 6> raised = {"11", "12", "13", "14", "15", "16"};
    session.rates = established;
    RatesForm no = formWithPresent(raised, false);
    no.perDay = false;
    no.currency.reset(); // no button checked: the currency stays
    acceptRatesForm(session, no);
    RatesRecord rates = saved();
    EXPECT_EQ(rates.previousRate[0].get(), 9.0f);
    EXPECT_EQ(rates.rateChangeTime.get(), 1240477500);
    EXPECT_EQ(rates.perDay.get(), 0u);
    EXPECT_EQ(rates.currency.get(), 2u);

    session.rates = established;
    RatesForm yes = formWithPresent(raised, true);
    yes.currency = 1;
    acceptRatesForm(session, yes);
    rates = saved();
    for (std::size_t cats = 0; cats < 6; ++cats) {
        EXPECT_EQ(rates.previousRate[cats].get(), established.presentRate[cats].get());
        EXPECT_EQ(rates.presentRate[cats].get(), 11.0f + static_cast<float>(cats));
    }
    EXPECT_EQ(rates.rateChangeTime.get(), fakes.clock.now());
    EXPECT_EQ(rates.currency.get(), 1u);
    EXPECT_EQ(rates.perDay.get(), 1u);
}

} // namespace
} // namespace purrlodge
