#include "print/ArrivalSheets.h"

#include <algorithm>
#include <gtest/gtest.h>
#include <string>
#include <vector>

#include "print/AdmissionRegisterPages.h"
#include "print/PageLayout.h"
#include "print/PrintBuffer.h"
#include "store/CivilCalendar.h"
#include "store/RandomDraw.h"
#include "support/FakeCanvas.h"
#include "support/FakePorts.h"
#include "support/SampleAccount.h"

namespace purrlodge {
namespace {

using Lines = std::vector<std::string>;

// Letter's printable height, a quarter inch inside the paper, at 600 dpi.
constexpr int letterBottom = 6300;

// Draws the buffer on a 600 dpi page whose device rounds each cell a pixel up
// and returns the lowest bottom of a line.
int bottomOf(PrintBuffer& buffer)
{
    testing::FakeCanvas page;
    page.cellSlack = 1;
    renderPage(buffer, page);
    int bottom = 0;
    for (const auto& line : page.drawn)
        bottom = std::max(bottom, line.y + line.font.cellHeight + page.cellSlack);
    return bottom;
}

// Mrs Ann Smith's Tibbles boards alone from Wednesday to Wednesday; her other
// four cats stay at home.
class ArrivalSheetsTest : public ::testing::Test, protected testing::SampleAccount {
protected:
    ArrivalSheetsTest()
    {
        client.mobile.set("07700 900123::");
        client.vet.set("Upton Vets");
        client.catBreed[0].set("Persian");
        client.catColour[0].set("Cream");
        client.catSex[0].set(4);
        client.catBirthYear[0].set(2019);
        client.catMicrochip[0].set(2);
        client.catInsurance[0].set(1);
        client.catLastVaccination[0].set(
            static_cast<std::int32_t>(daysFromCivil(2026, 3, 15) * 86400));
        client.favouriteFoods[0][0].set("Chicken");
        client.favouriteFoods[0][2].set("Tuna");
        client.forbiddenFoods[0][1].set("Milk");
        client.notes[0].set("Pays by cheque");
        client.notes[1].set("#R# Bites when lifted");
        establishment.arrivalSheetLine[1].set("Cats must be vaccinated.");

        stay.arrivalDate.set("28/10/26");
        stay.departureDate.set("04/11/26");
        stay.arrivalWeekday.set("Wednesday");
        stay.departureWeekday.set("Wednesday");
        stay.arrivalRemark.set("morning");
        stay.catInStay[0].set(1);
        stay.catAge[0].set(7);
        stay.length.set(8);
        stay.textLine1.set("Half a tablet at breakfast");
        stay.furtherLines[0].set("Bob Smith 01227 888");
        stay.furtherLines[1].set("Basket, blanket");
        stay.dialogText.set("Vac Certs OK");
        stay.standardExtraChosen[0].set(1);
        values.standardExtraName = "Grooming";
    }

    void tickSixCats()
    {
        client.catName[5].set("Oscar");
        for (int slot = 0; slot < catSlotCount; ++slot) {
            stay.catInStay[slot].set(1);
            client.catBreed[slot].set("Maine Coon");
            client.catColour[slot].set("Blue Silver Tabby");
            for (int food = 0; food < foodsPerCat; ++food) {
                client.favouriteFoods[slot][food].set("Chicken in jelly");
                client.forbiddenFoods[slot][food].set("Anything with fish");
            }
        }
        for (auto& note : client.notes)
            note.set("#R# Needs her eye drops twice a day, morning and evening, with a treat");
        stay.textLine2.set("Only the prescription biscuits she brought with her, nothing else");
    }

    // The texts of the filled slots; with a colour field, only those in it.
    Lines texts(const std::string& colour = "") const
    {
        Lines result;
        for (int slot = 0; slot < buffer.count; ++slot)
            if (colour.empty() ||
                buffer.formats[slot].find(", " + colour + ",") != std::string::npos)
                result.push_back(buffer.texts[slot]);
        return result;
    }
    bool has(const std::string& text, const std::string& format) const
    {
        for (int slot = 0; slot < buffer.count; ++slot)
            if (buffer.texts[slot] == text && buffer.formats[slot] == format)
                return true;
        return false;
    }

    StayRecord stay{};
    testing::FakeClock clock;
    testing::FakeRandom random{{4}};
    RandomDraw draw{random, clock};
    ArrivalSheetValues values{establishment, client, stay, clock};
    PrintBuffer buffer;
};

TEST_F(ArrivalSheetsTest, OnlyTickedCatsAppearAndRedIsForRedNotesAndFailedVaccinations)
{
    values.inColour = true;
    values.nameColourIndex = 10; // drawn at random: the fake draws 4, red
    fillArrivalSheet1(buffer, values, draw);
    EXPECT_EQ(buffer.texts[0], "Whiskers Lodge");
    EXPECT_EQ(texts("900"), (Lines{"Whiskers Lodge", "Bites when lifted"}));
    fillArrivalSheet2(buffer, values, draw);
    EXPECT_TRUE(has("Tibbles", "3, 2, 0, 3, n, 000, A"));
    EXPECT_EQ(std::count(buffer.texts.begin(), buffer.texts.end(), "Felix"), 0);

    // Without "C" no name; a failed status is red.
    establishment.displayFlags.set("A2");
    stay.dialogText.set("At least one Vac Cert is more than 1 years old!");
    fillArrivalSheet1(buffer, values, draw);
    EXPECT_EQ(buffer.texts[0], "Tibbles");
    EXPECT_EQ(texts("900"),
              (Lines{"Bites when lifted", "At least one Vac Cert is more than 1 years old!"}));
}

TEST_F(ArrivalSheetsTest, ReturnSheetTestPattern)
{
    fillReturnSheet(buffer, values, true);
    EXPECT_EQ(buffer.count, 10);
    // How a colour field draws is PrintLineFormatTest's; here the fields.
    EXPECT_EQ(buffer.texts[0], "This is 000");
    EXPECT_EQ(texts("009"), Lines{"This is 009"});
    EXPECT_EQ(texts("990"), Lines{"This is 990"});
}

TEST_F(ArrivalSheetsTest, SixCatsWithEverythingFilledStillFitOnePageAndTheBuffer)
{
    tickSixCats();
    using Fill = void (*)(PrintBuffer&, const ArrivalSheetValues&, RandomDraw&);
    const Fill fills[] = {fillArrivalSheet1, fillArrivalSheet2,
                          [](PrintBuffer& b, const ArrivalSheetValues& v, RandomDraw&) {
                              fillReturnSheet(b, v, false);
                          }};
    for (const Fill fill : fills) {
        fill(buffer, values, draw);
        EXPECT_LT(buffer.count, printSlotCount);
        EXPECT_TRUE(std::any_of(buffer.texts.begin(), buffer.texts.end(),
                                [](const std::string& text) { return text.ends_with("Oscar"); }));
        EXPECT_LE(bottomOf(buffer), letterBottom);
    }
}

// Stays numbered by their arrival day, with one cat more every third stay.
std::vector<AdmissionEntry> admissions(int count)
{
    std::vector<AdmissionEntry> entries;
    for (int stay = 0; stay < count; ++stay) {
        AdmissionEntry entry;
        entry.arrival = formatted("%02d/10/26", stay + 1);
        entry.departure = "30/10/26";
        for (int cat = 0; cat <= stay % 3; ++cat)
            entry.cats.push_back(formatted("Cat%d-%d  (f, 7, Persian Cream)", stay + 1, cat));
        entry.owner = "Mrs Ann Smith";
        entry.address = "2 High Street, Upton, Canterbury, Kent CT1 2AB";
        entry.telephone = "01227 777, 07700 900123";
        entry.emergencyContact = "Bob Smith 01227 888";
        entry.vet = "Upton Veterinary Surgery";
        entry.vaccinationStatus = "Vac Certs OK";
        entries.push_back(entry);
    }
    return entries;
}

TEST(AdmissionRegisterPagesTest, EntriesAreNeverSplitAndEveryPageFits)
{
    const std::vector<AdmissionEntry> entries = admissions(16);
    const AdmissionRegisterPages pages("Whiskers Lodge", "01/10/26 to 31/10/26", entries);
    ASSERT_EQ(pages.pageCount(), 3);

    PrintBuffer buffer;
    std::size_t next = 0; // the entries appear in order, each whole on one page
    for (int page = 0; page < pages.pageCount(); ++page) {
        pages.fillPage(buffer, page);
        const auto end = buffer.texts.begin() + buffer.count;
        EXPECT_NE(std::find(buffer.texts.begin(), end, formatted("Page %d of 3", page + 1)), end);
        for (; next < entries.size(); ++next) {
            if (std::find(buffer.texts.begin(), end, entries[next].arrival) == end)
                break;
            for (const std::string& cat : entries[next].cats)
                EXPECT_NE(std::find(buffer.texts.begin(), end, cat), end) << cat;
        }
        EXPECT_LT(buffer.count, printSlotCount);
        EXPECT_LE(bottomOf(buffer), letterBottom);
    }
    EXPECT_EQ(next, entries.size());
}

TEST(AdmissionRegisterPagesTest, AnEmptyPeriodIsOnePageSayingSo)
{
    const AdmissionRegisterPages pages("Whiskers Lodge", "01/10/26 to 31/10/26", {});
    EXPECT_EQ(pages.pageCount(), 1);
    PrintBuffer buffer;
    pages.fillPage(buffer, 0);
    EXPECT_EQ(buffer.texts[3], "Page 1 of 1");
    EXPECT_EQ(buffer.texts[static_cast<std::size_t>(buffer.count - 1)],
              "No stays began in this period.");
}

} // namespace
} // namespace purrlodge
