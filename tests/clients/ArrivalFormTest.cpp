#include "clients/ArrivalForm.h"

#include <gtest/gtest.h>

#include "store/Dates.h"
#include "support/Bytes.h"
#include "support/FakePorts.h"

namespace purrlodge {
namespace {

using testing::bytesOf;

// Mrs Ann Smith's three cats, the cattery's vaccinations valid for a year, a
// day rate, and today 25/11/26.
class ArrivalFormTest : public ::testing::Test {
protected:
    void SetUp() override
    {
        clock.setUtc(2026, 11, 25, 9, 30);
        client.style.set("Mrs");
        client.firstName.set("Ann");
        client.surname.set("Smith");
        const char* cats[] = {"Tibbles", "Felix", "Smudge"};
        for (int cat = 0; cat < 3; ++cat) {
            client.catName[cat].set(cats[cat]);
            client.catBirthYear[cat].set(2016 + cat);
            client.catLastVaccination[cat].set(static_cast<std::int32_t>(clock.now()) -
                                               200 * secondsPerDay);
        }
        client.notes[0].set("#R# Bites when lifted");
        client.favouriteFoods[1][0].set("Tuna");
        establishment.vaccinationYears.set("1");
        rates.perDay.set(1);
        rates.standardExtraName.set("Grooming");
    }

    ArrivalForm open(const StayRecord& stay) const
    {
        return openArrivalForm(client, stay, establishment, rates, clock, {true, false, true});
    }

    testing::FakeClock clock;
    ClientRecord client{};
    EstablishmentRecord establishment{};
    RatesRecord rates{};
};

TEST_F(ArrivalFormTest, ABookedStayIsShownAndAPastOneGivesAClearedFormWithEveryCat)
{
    StayRecord stay{};
    stay.arrivalDate.set("20/11/26");
    stay.departureDate.set("25/11/26"); // leaves today: still going on
    stay.catInStay[1].set(1);
    stay.textLine1.set("Ear drops twice a day");
    stay.standardExtraChosen[0].set(1);
    ArrivalForm booked = open(stay);
    EXPECT_EQ(booked.arrival + "-" + booked.departure, "20/11/26-25/11/26");
    EXPECT_EQ(booked.medication, "Ear drops twice a day");
    EXPECT_TRUE(!booked.cats[0].ticked && booked.cats[1].ticked && !booked.catShown[3]);
    EXPECT_TRUE(booked.standardExtraWanted);
    EXPECT_EQ(booked.sheets, (std::array<bool, 3>{true, false, true}));
    EXPECT_EQ(booked.clientChecks.front(), "Tibbles: Chip? / Ins?");
    EXPECT_EQ(booked.clientChecks[1], "Felix: Chip? / Ins?; likes Tuna");
    EXPECT_EQ(booked.clientChecks.back(), "#R# Bites when lifted");

    stay.departureDate.set("24/11/26"); // left yesterday
    const ArrivalForm cleared = open(stay);
    EXPECT_TRUE(cleared.arrival.empty() && cleared.medication.empty());
    EXPECT_TRUE(cleared.cats[0].ticked && cleared.cats[1].ticked && cleared.cats[2].ticked);
    EXPECT_FALSE(cleared.standardExtraWanted);
}

// The period's edges and a cat never vaccinated are pinned in ClientDetailsTest.
TEST_F(ArrivalFormTest, TheVaccinationStatusIsTakenAgainstTheCatterysPeriodAndToday)
{
    EXPECT_EQ(open(StayRecord{}).vaccinationStatus, "Vac Certs OK");
    client.catLastVaccination[2].set(static_cast<std::int32_t>(clock.now()) - 366 * secondsPerDay);
    EXPECT_EQ(open(StayRecord{}).vaccinationStatus,
              "At least one Vac Cert is more than 1 years old!");
}

TEST_F(ArrivalFormTest, TheStayRecordIsWrittenWholeForANewStayAndAChangedOne)
{
    ArrivalForm form = open(StayRecord{});
    StayRecord expected{};
    const auto enter = [&](std::string ArrivalForm::*entry, auto& field, const char* text) {
        form.*entry = text;
        field.set(text);
    };
    enter(&ArrivalForm::arrival, expected.arrivalDate, "28/11/26");
    enter(&ArrivalForm::departure, expected.departureDate, "02/12/26");
    enter(&ArrivalForm::arrivalRemark, expected.arrivalRemark, "morning");
    enter(&ArrivalForm::departureRemark, expected.departureRemark, "4pm");
    enter(&ArrivalForm::medication, expected.textLine1, "Ear drops");
    enter(&ArrivalForm::feedingChanges, expected.textLine2, "No milk");
    enter(&ArrivalForm::emergencyContact, expected.furtherLines[0], "Jo 07700 900123");
    enter(&ArrivalForm::itemsBrought, expected.furtherLines[1], "Blue blanket");
    enter(&ArrivalForm::vaccinationStatus, expected.dialogText, "Certs seen");
    form.cats[2].ticked = false;
    form.standardExtraWanted = true;
    expected.arrivalWeekday.set("Saturday");
    expected.departureWeekday.set("Wednesday");
    expected.catInStay[0].set(1);
    expected.catInStay[1].set(1);
    expected.length.set(5);
    for (int cat = 0; cat < 3; ++cat)
        expected.catAge[cat].set(10 - cat);
    expected.standardExtraChosen[0].set(1);
    EXPECT_EQ(bytesOf(stayRecordOf(form, client, rates, StayRecord{}, clock)), bytesOf(expected));

    // A changed stay keeps the record's number and what the form does not
    // show; the lines it does not show are cleared with the old stay.
    StayRecord earlier = expected;
    earlier.number.set(7);
    earlier.unused1[3] = 9;
    earlier.furtherLines[2].set("old line");
    earlier.standardExtraChosen[1].set(1);
    enter(&ArrivalForm::departure, expected.departureDate, "01/12/26");
    rates.perDay.set(0);
    expected.departureWeekday.set("Tuesday");
    expected.length.set(3);
    expected.number.set(7);
    expected.unused1[3] = 9;
    expected.standardExtraChosen[1].set(1);
    EXPECT_EQ(bytesOf(stayRecordOf(form, client, rates, earlier, clock)), bytesOf(expected));
}

TEST_F(ArrivalFormTest, TheLengthIsShownAsTheRatesChargeAndTheSheetsChoiceIsKept)
{
    EXPECT_EQ(stayLengthText("28/11/26", "2/12/2026", rates), "5 days");
    rates.perDay.set(0);
    EXPECT_EQ(stayLengthText("28/11/26", "02/12/26", rates), "4 nights");
    EXPECT_EQ(stayLengthText("28/11/26", "31/11/26", rates), "");
    EXPECT_EQ(stayLengthText("28/11/26", "", rates), "");
    EXPECT_EQ(stayLengthText("28/11/26", "27/11/26", rates), "") << "leaving before arriving";

    EXPECT_EQ(sheetsSetting({true, false, true}), "13");
    EXPECT_EQ(sheetsFromSetting("13"), (std::array<bool, 3>{true, false, true}));
    EXPECT_EQ(sheetsFromSetting(sheetsSetting({false, false, false})),
              (std::array<bool, 3>{false, false, false}));
    EXPECT_EQ(sheetsFromSetting(""), (std::array<bool, 3>{true, true, true})) << "never chosen";
}

} // namespace
} // namespace purrlodge
