#include <filesystem>
#include <gtest/gtest.h>

#include "accounts/CatteryFiles.h"
#include "accounts/EstablishmentDetails.h"
#include "accounts/ExchangeRateSetup.h"
#include "accounts/RatesSetup.h"
#include "accounts/ReceiptNumberSetup.h"
#include "accounts/StandardExtraSetup.h"
#include "store/ClientFiles.h"
#include "store/DataFolder.h"
#include "support/Bytes.h"
#include "support/FakePorts.h"
#include "support/TempFolder.h"

namespace purrlodge {
namespace {

using enum FormVerdict;
using testing::bytesOf;

// The rules behind OK of the Setup menu's dialogs (13, 14, 77, 23 and 15).
class CatterySetupTest : public ::testing::Test {
protected:
    CatterySetupTest()
    {
        clock.setUtc(2010, 3, 1, 14, 7);
        for (std::size_t cats = 0; cats < 6; ++cats) {
            established.presentRate[cats].set(10.0f + static_cast<float>(cats));
            established.previousRate[cats].set(9.0f + static_cast<float>(cats));
        }
        established.currency.set(2);
        established.perDay.set(1);
        established.rateChangeTime.set(1240477500); // 09:05 on 23 April 2009
        details.name = "Whiskers Lodge";
        details.vaccinationYears = "1";
        details.arrivalSheetLine[0] = "---";
        details.arrivalSheetLine[1] = "Bring a blanket";
        details.typeSize = "12"; // read as 1
        details.onArrivalSheet = details.onAccountSheet = details.inRed = true;
    }

    testing::TempFolder temp;
    testing::FakeUi ui;
    testing::FakeClock clock;
    DataFolder folder{temp.path(), ui};
    RatesRecord established{};
    RatesRecord rates{};
    EstablishmentForm details;
    EstablishmentRecord establishment{};
};

TEST_F(CatterySetupTest, FormsStartFromTheFileAndReadTheirEntriesCutShort)
{
    ASSERT_TRUE(saveRates(folder, established));
    rates.presentRate[0].set(99.0f); // unsaved, and not to be saved
    const RatesForm form = openRatesForm(rates, folder, clock);
    EXPECT_EQ(bytesOf(rates), bytesOf(established));
    EXPECT_EQ(form.presentRate[5] + " " + form.previousRate[0], "15.00 9.00");
    EXPECT_TRUE(form.currency == 2u && form.perDay && !form.updatePreviousRates);
    EXPECT_EQ(form.todayText, "Today: 14:7 - 1 March, 2010");
    EXPECT_EQ(form.previousSetText, "'Previous' set: at 9:5 on 23 April, 2009");

    rates.presentRate[0].set(99.0f);
    ASSERT_EQ(acceptStandardExtraForm({"Grooming and a good brush", "4.2500000000000000000009"},
                                      rates, folder),
              Accept);
    EXPECT_EQ(testing::fileBytes(temp.root() / ratesFile), bytesOf(rates));
    EXPECT_EQ(rates.standardExtraName.str(), "Grooming and a good bru");
    EXPECT_EQ(rates.presentRate[0].get(), 10.0f);
    EXPECT_EQ(standardExtraFormFrom(rates).amount, "4.25");

    ExchangeRateRecord exchangeRate{};
    exchangeRate.pencePerEuro.set(62.5f);
    EXPECT_EQ(exchangeRateFormFrom(exchangeRate).pencePerEuro, "62.50");
    // The exponent is cut off.
    ASSERT_EQ(acceptExchangeRateForm({"12345678901e-5", true}, exchangeRate, folder), Accept);
    EXPECT_EQ(testing::fileBytes(temp.root() / exchangeRateFile), bytesOf(exchangeRate));
    EXPECT_EQ(exchangeRate.pencePerEuro.get(), 12345678901.0f);
    EXPECT_EQ(exchangeRate.showEuros.get(), 1u);
    EXPECT_TRUE(euroExchangeRateEnabled(established) && !euroExchangeRateEnabled(RatesRecord{}));

    // The receipt number typed is the next account's number.
    ClientIndex index{};
    EXPECT_EQ(receiptNumberOffer(index), "1000");
    ASSERT_EQ(acceptReceiptNumber("1000", index, folder), Accept);
    EXPECT_EQ(testing::fileBytes(temp.root() / currentIndexFile), bytesOf(index));
    EXPECT_EQ(index.lastAccountNumber.get(), 999);
    ASSERT_EQ(acceptReceiptNumber("12345678", index, folder), Accept);
    EXPECT_EQ(receiptNumberOffer(index), "1234567");
}

TEST_F(CatterySetupTest, RatesReadSevenCharactersAndYesMovesThePresentOnesToPrevious)
{
    for (const bool yes : {false, true}) {
        // The first rates saved are the previous ones too, whatever the choice.
        rates = RatesRecord{};
        RatesForm form = ratesFormFrom(rates, clock);
        form.presentRate = {"8.5", "", "abc", "12.3456789", "14", "16"};
        form.updatePreviousRates = yes;
        ASSERT_EQ(acceptRatesForm(form, rates, folder, clock), Accept);
        EXPECT_EQ(testing::fileBytes(temp.root() / ratesFile), bytesOf(rates));
        EXPECT_EQ(rates.presentRate[2].get(), 0.0f);     // "abc", as an empty field
        EXPECT_EQ(rates.presentRate[3].get(), 12.3456f); // seven characters read
        for (std::size_t cats = 0; cats < 6; ++cats)
            EXPECT_EQ(rates.previousRate[cats].get(), rates.presentRate[cats].get()) << yes;

        // Later, only "Yes" moves them and stamps the time; no currency checked keeps it.
        rates = established;
        form = ratesFormFrom(rates, clock);
        form.presentRate = {"11", "12", "13", "14", "15", "16"};
        form.updatePreviousRates = form.perDay = yes;
        form.currency = yes ? std::optional<std::uint32_t>(1) : std::nullopt;
        ASSERT_EQ(acceptRatesForm(form, rates, folder, clock), Accept);
        EXPECT_EQ(rates.previousRate[5].get(), yes ? 15.0f : 14.0f);
        EXPECT_EQ(rates.rateChangeTime.get(), yes ? clock.now() : 1240477500);
        EXPECT_EQ(rates.currency.get(), yes ? 1u : 2u);
        EXPECT_EQ(rates.perDay.get(), yes ? 1u : 0u);
    }
}

TEST_F(CatterySetupTest, CatteryDetailsChecksComeInOrderThenTheRecordIsCompletedAndSaved)
{
    // A missing name or vaccination period (empty or beginning with a blank) ends the
    // program before the type size counts; a size outside 1..5 keeps the dialog open.
    const Message entryVoid{"You Must Provide at least the Establishment's Name\nand the "
                            "Duration of Vaccination validity.",
                            "Entry Void", MessageIcon::Exclamation};
    const Message textSizeError{"Manager's name Text Size must be between 1 and 5 (incl)",
                                "Text Size Error"};
    using Entry = std::string EstablishmentForm::*;
    const Entry name = &EstablishmentForm::name, years = &EstablishmentForm::vaccinationYears,
                size = &EstablishmentForm::typeSize;
    const std::pair<Entry, const char*> refused[] = {{name, ""},    {name, " Cats"}, {years, ""},
                                                     {years, " 1"}, {size, "0"},     {size, "6"},
                                                     {size, ""}};
    for (const auto& [entry, text] : refused) {
        EstablishmentForm entries = details;
        entries.typeSize = "9";
        entries.*entry = text;
        ui.messages.clear();
        EXPECT_EQ(acceptEstablishmentForm(entries, establishment, folder, ui),
                  entry == size ? StayOpen : EndProgram);
        EXPECT_EQ(ui.messages, std::vector<Message>{entry == size ? textSizeError : entryVoid})
            << text;
    }
    EXPECT_EQ(bytesOf(establishment), bytesOf(EstablishmentRecord{}));
    EXPECT_FALSE(folder.exists(establishmentFile));

    ASSERT_EQ(acceptEstablishmentForm(details, establishment, folder, ui), Accept);
    EXPECT_EQ(testing::fileBytes(temp.root() / establishmentFile), bytesOf(establishment));
    EXPECT_EQ(establishment.managerTypeSize.str() + establishment.displayFlags.str() +
                  establishment.chequesColour.str(),
              "12CA1**RED**");
    EXPECT_EQ(managerTypeSizeOf(establishment), 1);
    EXPECT_EQ(establishment.arrivalSheetLine[0].str() + establishment.arrivalSheetLine[1].str(),
              "Bring a blanket");
    const EstablishmentForm shown = establishmentFormFrom(establishment);
    EXPECT_TRUE(shown.typeSize == "12" && shown.onArrivalSheet && shown.onAccountSheet &&
                shown.inRed);
    EXPECT_EQ(establishmentFormFrom(EstablishmentRecord{}).typeSize, "2");

    details.onArrivalSheet = details.inRed = false;
    details.typeSize = "5";
    ASSERT_EQ(acceptEstablishmentForm(details, establishment, folder, ui), Accept);
    EXPECT_EQ(establishment.displayFlags.str() + establishment.chequesColour.str(), "A5**BLACK**");
}

// A folder in the file's place makes every save fail, and every read too: each
// rule keeps its dialog open and changes nothing in memory.
TEST_F(CatterySetupTest, AFailedSaveKeepsTheDialogOpenAndChangesNothingInMemory)
{
    for (const auto file : {ratesFile, exchangeRateFile, establishmentFile, currentIndexFile})
        std::filesystem::create_directory(temp.root() / file);

    rates = established;
    EXPECT_EQ(acceptRatesForm(ratesFormFrom(RatesRecord{}, clock), rates, folder, clock), StayOpen);
    EXPECT_EQ(acceptStandardExtraForm({"Bath", "3"}, rates, folder), StayOpen);
    (void)openRatesForm(rates, folder, clock);
    EXPECT_EQ(bytesOf(rates), bytesOf(established));

    ExchangeRateRecord exchangeRate{};
    EXPECT_EQ(acceptExchangeRateForm({"70", true}, exchangeRate, folder), StayOpen);
    EXPECT_EQ(bytesOf(exchangeRate), bytesOf(ExchangeRateRecord{}));

    ClientIndex index{};
    EXPECT_EQ(acceptReceiptNumber("2000", index, folder), StayOpen);
    EXPECT_EQ(index.lastAccountNumber.get(), 0);

    EXPECT_EQ(acceptEstablishmentForm(details, establishment, folder, ui), StayOpen);
    EXPECT_EQ(bytesOf(establishment), bytesOf(EstablishmentRecord{}));
    EXPECT_EQ(ui.titles(), std::vector<std::string>(5, "File Error"));
}

} // namespace
} // namespace purrlodge
