#include "clients/ClientDetails.h"

#include <climits>
#include <fstream>
#include <gtest/gtest.h>

#include "store/DataFolder.h"
#include "store/Dates.h"
#include "support/FakePorts.h"
#include "support/TempFolder.h"

namespace purrlodge {
namespace {

using Lines = std::vector<std::string>;

std::int32_t dateNumber(std::string_view ddmmyy)
{
    return static_cast<std::int32_t>(dateToNumber(ddmmyy));
}

void putCat(ClientRecord& client, int slot, std::string_view name, int sex, int born,
            std::int32_t vaccinated = 0, int chip = 0, int insurance = 0)
{
    client.catName[slot].set(name);
    client.catSex[slot].set(sex);
    client.catBirthYear[slot].set(born);
    client.catColour[slot].set("Grey");
    client.catBreed[slot].set("Moggy");
    client.catMicrochip[slot].set(chip);
    client.catInsurance[slot].set(insurance);
    client.catLastVaccination[slot].set(vaccinated);
}

class ClientDetailsTest : public ::testing::Test {
protected:
    // Mrs Anne Smith with three cats, a gap before the third, and most fields filled.
    static ClientRecord smith()
    {
        ClientRecord client{};
        client.code.set("SmithOld"); // the record disagrees with the index
        client.style.set("Mrs");
        client.firstName.set("Anne");
        client.surname.set("Smith");
        client.address[0].set("1 Mill Lane");
        client.address[2].set("Frome");
        client.address[3].set("BA11 1XY");
        client.telephone.set("01632 960001");
        client.mobile.set("07700 900001::old");
        client.email.set("anne@example.com");
        client.vet.set("Castle Vets");
        putCat(client, 0, "Tigger", 1, 2010, dateNumber("01/06/04"), 2, 1);
        putCat(client, 1, "Smudge", 0, 0);
        putCat(client, 3, "Pig", 3, 2020, dateNumber("01/12/99"), 1, 2); // after a gap
        client.catBreed[1].clear();
        client.arrivalDate.set("01/05/24");
        client.departureDate.set("08/05/24");
        client.lastInDate.set("02/02/23");
        client.lastOutDate.set("09/02/23");
        client.firstRegistered.set(dateNumber("05/03/09"));
        client.knownRating.set(3);
        client.notes[0].set("#R# Needs tablets");
        client.notes[2].set(" . ");
        client.notes[3].set("Shy");
        client.favouriteFoods[0][0].set("Fish");
        client.favouriteFoods[0][2].set("Tuna");
        client.favouriteFoods[1][0].set("Lamb"); // another cat's foods are not listed
        client.forbiddenFoods[0][0].set("Beef");
        client.forbiddenFoods[0][1].set("Milk");
        return client;
    }

    void touch(std::string_view name) { std::ofstream(folder.fileName(name)) << "x"; }

    ClientDetailsListing listing(const ClientRecord& client, std::string_view code = "SmithAnn")
    {
        return clientDetailsListing(folder, client, code, 2024, fakes.clock);
    }

    testing::TempFolder temp;
    testing::FakePorts fakes;
    DataFolder folder{temp.path(), fakes.ui};
};

TEST_F(ClientDetailsTest, ACurrentClientIsListedInFullAndAPastOneShortened)
{
    const ClientDetailsListing shown = listing(smith());
    const Lines expected{"Mrs Anne Smith",
                         "1 Mill Lane",
                         "Frome",
                         "BA11 1XY\t\tTel: 01632 960001",
                         "\t\tMobile: 07700 900001",
                         " ",
                         "E-mail: anne@example.com",
                         " ",
                         "Vet is - Castle Vets",
                         " ",
                         "Cats:",
                         "Tigger\t[M]\tAge=14\tGrey Moggy\t  Chip+ / Ins-   (Last Vac: 06/04), ",
                         "Smudge\t[f]\t%Age= ??\tGrey \t  Chip? / Ins?   (Last Vac: 01/70), ",
                         "Pig\t[m]\tAge=4\tGrey Moggy\t  Chip- / Ins+   (Last Vac: 12/99)",
                         " ",
                         "Most Recent Visit 01/05/24 -> 08/05/24",
                         "Previous Last Visit: 02/02/23 -> 09/02/23",
                         "First Registered: 05/03/2009    (Known rating = 3)",
                         " ",
                         "Notes:",
                         "#R# Needs tablets",
                         "Shy",
                         " ",
                         "Feeding:",
                         "Likes:\tFish  , Tuna",
                         "Doesn't Like:\tBeef, Milk  ",
                         "OFID = SmithAnn / SmithOld"};
    EXPECT_EQ(shown.lines, expected);
    EXPECT_EQ(shown.caption, "Client's Full Details");
    EXPECT_FALSE(shown.otherCatsEnabled || shown.specialNotesEnabled);

    // The files the finder's code names enable the look-up buttons.
    for (const char* file : {"SmithAnn.XCT", "SmithAnn.XC2"}) {
        touch(file);
        const ClientDetailsListing withFile = listing(smith());
        EXPECT_TRUE(withFile.otherCatsEnabled && !withFile.specialNotesEnabled) << file;
        EXPECT_EQ(withFile.lines.back(),
                  "                         There are other cats known to  Anne Smith");
        std::filesystem::remove(folder.fileName(file));
    }
    touch("SmithAnn.NTS");
    const ClientDetailsListing withNotes = listing(smith());
    EXPECT_TRUE(withNotes.specialNotesEnabled && !withNotes.otherCatsEnabled);
    EXPECT_EQ(Lines(withNotes.lines.end() - 2, withNotes.lines.end()),
              (Lines{" ", "                         There are Special Notes for Anne"}));

    // A past client's shorter listing: no mobile line, the colour alone on
    // each cat line, a two-figure registration year and never a button.
    ClientRecord past = smith();
    past.lastInDate.clear();
    const ClientDetailsListing shortened =
        pastClientDetailsListing(past, "SmithAnn", 2024, fakes.clock);
    EXPECT_EQ(shortened.caption, "Detais of Previous Client Mrs Anne Smith");
    EXPECT_FALSE(shortened.otherCatsEnabled || shortened.specialNotesEnabled);
    Lines shorter = expected;
    shorter.erase(shorter.begin() + 4);
    shorter[10] = "Tigger\t[M]\tAge=14\tGrey\t(Last Vac: 06/04), ";
    shorter[11] = "Smudge\t[f]\tAge= ??\tGrey\t(Last Vac: 01/70), ";
    shorter[12] = "Pig\t[m]\tAge=4\tGrey\t(Last Vac: 12/99)";
    shorter[15] = "Previous Last Visit:  Not Recorded";
    shorter[16] = "First Registered: 05/03/09    (Known rating = 3)";
    EXPECT_EQ(shortened.lines, shorter);
    past.firstRegistered.set(0);
    EXPECT_EQ(listing(past).lines[17], "First Registered:  Not Recorded  (Known rating - 3)");
}

TEST_F(ClientDetailsTest, AnyStoredYearOfBirthGivesAnAge)
{
    ClientRecord client{};
    putCat(client, 0, "Tigger", 1, INT_MIN); // an age past 32 bits
    EXPECT_EQ(listing(client).lines[9].substr(0, 26), "Tigger\t[M]\tAge=2147485672\t");
}

TEST_F(ClientDetailsTest, VaccinationCertificatesLastTheYearsSetIn365DayYears)
{
    const std::int64_t now = 1'718'447'400, day = 86400;
    ClientRecord client{};
    putCat(client, 0, "Tigger", 1, 2010, static_cast<std::int32_t>(now - 730 * day));
    putCat(client, 3, "", 1, 2010); // an unnamed slot is not examined
    EXPECT_EQ(vaccinationCertificateStatus(client, "2", now), "Vac Certs OK");

    putCat(client, 1, "Pig", 1, 2010, static_cast<std::int32_t>(now - 730 * day - 1));
    EXPECT_EQ(vaccinationCertificateStatus(client, "2 yrs", now),
              "At least one Vac Cert is more than 2 yrs years old!");
    putCat(client, 2, "Smudge", 1, 2010); // never vaccinated: always out of date
    EXPECT_EQ(vaccinationCertificateStatus(client, "40", now),
              "At least one Vac Cert is more than 40 years old!");
}

} // namespace
} // namespace purrlodge
