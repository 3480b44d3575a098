#include <gtest/gtest.h>

#include "accounts/CatteryFiles.h"
#include "accounts/ExchangeRateSetup.h"
#include "accounts/ReceiptNumberSetup.h"
#include "accounts/StandardExtraSetup.h"
#include "app/Session.h"
#include "store/ClientFiles.h"
#include "support/FakePorts.h"
#include "support/TempFolder.h"

namespace purrlodge {
namespace {

// The three small set-up dialogs: Pound/Euro Exchange Rate (23), Set Standard
// Extra (77) and Initial Receipt Number (15).
class CatterySetupTest : public ::testing::Test {
protected:
    testing::TempFolder temp;
    testing::FakePorts fakes;
    Session session{fakes.ports(), temp.path()};
};

TEST_F(CatterySetupTest, ExchangeRateReadsElevenCharactersAndIsOfferedOnlyForSterling)
{
    session.exchangeRate.pencePerEuro.set(62.5f);
    EXPECT_EQ(exchangeRateFormFrom(session.exchangeRate).pencePerEuro, "62.50");

    acceptExchangeRateForm(session, {"12345678901e-5", true}); // the exponent is cut off
    ExchangeRateRecord onDisc{};
    ASSERT_TRUE(loadExchangeRate(session.folder, onDisc));
    EXPECT_EQ(onDisc.pencePerEuro.get(), 12345678901.0f);
    EXPECT_EQ(onDisc.showEuros.get(), 1u);

    RatesRecord rates{};
    for (std::uint32_t currency = 0; currency < 4; ++currency) {
        rates.currency.set(currency);
        EXPECT_EQ(euroExchangeRateEnabled(rates), currency == 2) << currency;
    }
}

TEST_F(CatterySetupTest, StandardExtraStartsFromTheFileAndTakesTwentyThreeCharacters)
{
    RatesRecord onDisc{};
    onDisc.presentRate[0].set(12.0f);
    ASSERT_TRUE(saveRates(session.folder, onDisc));
    session.rates.presentRate[0].set(99.0f); // unsaved, and not to be saved

    acceptStandardExtraForm(session, {"Grooming and a good brush", "4.2500000000000000000009"});
    ASSERT_TRUE(loadRates(session.folder, onDisc));
    EXPECT_EQ(onDisc.standardExtraName.str(), "Grooming and a good bru");
    EXPECT_EQ(onDisc.standardExtraCharge.get(), 4.25f);
    EXPECT_EQ(onDisc.presentRate[0].get(), 12.0f);
    EXPECT_EQ(standardExtraFormFrom(onDisc).amount, "4.25");
}

TEST_F(CatterySetupTest, ReceiptNumberTypedIsTheNextAccountsNumber)
{
    EXPECT_EQ(receiptNumberOffer(session.index), "1000");
    acceptReceiptNumber(session, "1000");
    ClientIndex onDisc{};
    ASSERT_TRUE(readIndex(session.folder, onDisc));
    EXPECT_EQ(onDisc.lastAccountNumber.get() + 1, 1000);
    EXPECT_EQ(receiptNumberOffer(onDisc), "1000");

    onDisc.lastAccountNumber.set(1041);
    EXPECT_EQ(receiptNumberOffer(onDisc), "1042");
    acceptReceiptNumber(session, "12345678");
    EXPECT_EQ(session.index.lastAccountNumber.get(), 1234566);
}

} // namespace
} // namespace purrlodge
