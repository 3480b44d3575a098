#include "clients/ClientDetails.h"

#include <fstream>
#include <gtest/gtest.h>

#include "store/ClientFiles.h"
#include "store/DataFolder.h"
#include "store/Dates.h"
#include "support/FakePorts.h"
#include "support/TempFolder.h"

namespace purrlodge {
namespace {

using Lines = std::vector<std::string>;

struct Cat {
    std::string name;
    int sex = 0;
    int born = 0;
    std::string colour;
    std::string breed;
    int chip = 0;
    int insurance = 0;
    std::int32_t vaccinated = 0;
};

std::int32_t dateNumber(std::string_view ddmmyy)
{
    return static_cast<std::int32_t>(dateToNumber(ddmmyy));
}

void putCat(ClientRecord& client, int slot, const Cat& cat)
{
    client.catName[slot].set(cat.name);
    client.catSex[slot].set(cat.sex);
    client.catBirthYear[slot].set(cat.born);
    client.catColour[slot].set(cat.colour);
    client.catBreed[slot].set(cat.breed);
    client.catMicrochip[slot].set(cat.chip);
    client.catInsurance[slot].set(cat.insurance);
    client.catLastVaccination[slot].set(cat.vaccinated);
}

class ClientDetailsTest : public ::testing::Test {
protected:
    static constexpr int year = 2024;

    // Mrs Anne Smith with three cats and most fields filled.
    static ClientRecord smith()
    {
        ClientRecord client{};
        client.code.set("SmithAnn");
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
        putCat(client, 0, {"Tigger", 1, 2010, "Ginger", "Moggy", 2, 1, dateNumber("01/06/04")});
        putCat(client, 1, {"Smudge", 0, 0, "Black", "", 0, 0, 0});
        putCat(client, 2, {"Pig", 3, 2020, "Grey", "Persian", 1, 2, dateNumber("01/12/99")});
        client.arrivalDate.set("01/05/24");
        client.departureDate.set("08/05/24");
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
        return clientDetailsListing(folder, client, code, year, fakes.clock);
    }

    testing::TempFolder temp;
    testing::FakePorts fakes;
    DataFolder folder{temp.path(), fakes.ui};
};

TEST_F(ClientDetailsTest, ThreeCatClientIsListedLineByLine)
{
    const ClientDetailsListing shown = listing(smith());
    const Lines expected{
        "Mrs Anne Smith",
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
        "Tigger\t[M]\tAge=14\tGinger Moggy\t  Chip+ / Ins-   (Last Vac: 06/04), ",
        "Smudge\t[f]\t%Age= ??\tBlack \t  Chip? / Ins?   (Last Vac: 01/70), ",
        "Pig\t[m]\tAge=4\tGrey Persian\t  Chip- / Ins+   (Last Vac: 12/99)",
        " ",
        "Most Recent Visit 01/05/24 -> 08/05/24",
        "Previous Last Visit:  Not Recorded",
        "First Registered: 05/03/2009    (Known rating = 3)",
        " ",
        "Notes:",
        "#R# Needs tablets",
        "Shy",
        " ",
        "Feeding:",
        "Likes:\tFish  , Tuna",
        "Doesn't Like:\tBeef, Milk  ",
        "OFID = SmithAnn / SmithAnn",
    };
    EXPECT_EQ(shown.lines, expected);
    EXPECT_EQ(shown.caption, "Client's Full Details");
    EXPECT_FALSE(shown.otherCatsEnabled);
    EXPECT_FALSE(shown.specialNotesEnabled);
}

TEST_F(ClientDetailsTest, ClientWithoutCatsOrRegistrationDate)
{
    ClientRecord client = smith();
    for (auto& name : client.catName)
        name.clear();
    client.firstRegistered.set(0);
    client.knownRating.set(7);
    client.lastInDate.set("02/02/23");
    client.lastOutDate.set("09/02/23");
    client.code.set("SmithOld"); // the record disagrees with the index

    const Lines lines = listing(client).lines;
    const auto cats = std::find(lines.begin(), lines.end(), "Cats:");
    ASSERT_NE(cats, lines.end());
    EXPECT_EQ(*(cats + 1), " ");
    EXPECT_EQ(*(cats + 2), "Most Recent Visit 01/05/24 -> 08/05/24");
    EXPECT_EQ(*(cats + 3), "Previous Last Visit: 02/02/23 -> 09/02/23");
    EXPECT_EQ(*(cats + 4), "First Registered:  Not Recorded  (Known rating - 7)");
    EXPECT_EQ(lines.back(), "OFID = SmithAnn / SmithOld");
}

TEST_F(ClientDetailsTest, OnlyCatLinesWithAFollowingCatEndInAComma)
{
    ClientRecord one = smith();
    one.catName[1].clear();
    one.catName[2].clear();
    const Lines oneCat = listing(one).lines;
    EXPECT_EQ(oneCat[11], "Tigger\t[M]\tAge=14\tGinger Moggy\t  Chip+ / Ins-   (Last Vac: 06/04)");
    EXPECT_EQ(oneCat[12], " ");

    ClientRecord six = smith();
    for (int slot = 0; slot < catSlotCount; ++slot)
        putCat(six, slot, {"Cat" + std::to_string(slot + 1), 4, 2020, "Grey", "Moggy", 2, 2, 0});
    const Lines sixCats = listing(six).lines;
    for (int slot = 0; slot < catSlotCount; ++slot) {
        const std::string& line = sixCats[11 + static_cast<std::size_t>(slot)];
        EXPECT_EQ(line.rfind("Cat" + std::to_string(slot + 1) + "\t[f]\tAge=4", 0), 0u) << line;
        EXPECT_TRUE(line.ends_with(slot < 5 ? "01/70), " : "01/70)")) << line;
    }
    EXPECT_EQ(sixCats[17], " ");

    // A record with a gap still joins its cats into one list.
    ClientRecord gap = smith();
    gap.catName[1].set(" ");
    const Lines gapped = listing(gap).lines;
    EXPECT_TRUE(gapped[11].ends_with("), "));
    EXPECT_EQ(gapped[12].rfind("Pig\t", 0), 0u);
}

TEST_F(ClientDetailsTest, OtherCatsAndNoteBookFilesEnableTheirButtons)
{
    touch("SmithAnn.XCT");
    ClientDetailsListing shown = listing(smith());
    EXPECT_TRUE(shown.otherCatsEnabled);
    EXPECT_FALSE(shown.specialNotesEnabled);
    EXPECT_EQ(Lines(shown.lines.end() - 2, shown.lines.end()),
              (Lines{" ", "                         There are other cats known to  Anne Smith"}));

    std::filesystem::remove(folder.fileName("SmithAnn.XCT"));
    touch("SmithAnn.XC2");
    touch("SmithAnn.NTS");
    shown = listing(smith());
    EXPECT_TRUE(shown.otherCatsEnabled);
    EXPECT_TRUE(shown.specialNotesEnabled);
    EXPECT_EQ(Lines(shown.lines.end() - 4, shown.lines.end()),
              (Lines{" ", "                         There are other cats known to  Anne Smith", " ",
                     "                         There are Special Notes for Anne"}));

    // The files are the ones of the code the finder chose.
    shown = listing(smith(), "Nobody00");
    EXPECT_FALSE(shown.otherCatsEnabled);
    EXPECT_FALSE(shown.specialNotesEnabled);
}

TEST_F(ClientDetailsTest, PastClientListingIsTheShortForm)
{
    touch("SmithAnn.NTS"); // never mentioned for a past client
    const ClientDetailsListing shown =
        pastClientDetailsListing(smith(), "SmithAnn", year, fakes.clock);
    EXPECT_EQ(shown.caption, "Detais of Previous Client Mrs Anne Smith");
    EXPECT_FALSE(shown.otherCatsEnabled || shown.specialNotesEnabled);

    // The current listing without its mobile line, with short cat lines and
    // a two-figure registration year.
    Lines expected = listing(smith()).lines;
    expected.erase(expected.begin() + 4);
    expected[10] = "Tigger\t[M]\tAge=14\tGinger\t(Last Vac: 06/04), ";
    expected[11] = "Smudge\t[f]\tAge= ??\tBlack\t(Last Vac: 01/70), ";
    expected[12] = "Pig\t[m]\tAge=4\tGrey\t(Last Vac: 12/99)";
    ASSERT_EQ(expected[16], "First Registered: 05/03/2009    (Known rating = 3)");
    expected[16] = "First Registered: 05/03/09    (Known rating = 3)";
    expected.resize(26); // up to the OFID line, without the note-book lines
    EXPECT_EQ(shown.lines, expected);
}

TEST_F(ClientDetailsTest, VaccinationCertificateRule)
{
    const std::int64_t now = 1'718'447'400, day = 86400;
    const auto status = [&](const ClientRecord& client, std::string_view years) {
        return vaccinationCertificateStatus(client, years, now);
    };
    ClientRecord client{};
    putCat(client, 0,
           {"Tigger", 1, 2010, "", "", 0, 0, static_cast<std::int32_t>(now - 730 * day)});
    putCat(client, 3, {"", 1, 2010, "", "", 0, 0, 0}); // an unnamed slot is not examined
    EXPECT_EQ(status(client, "2"), "Vac Certs OK");

    putCat(client, 1, {"Pig", 1, 2010, "", "", 0, 0, static_cast<std::int32_t>(now - 731 * day)});
    EXPECT_EQ(status(client, "2"), "At least one Vac Cert is more than 2 years old!");
    // The message shows the text as stored; the period is its leading number.
    EXPECT_EQ(status(client, "2 yrs"), "At least one Vac Cert is more than 2 yrs years old!");
    EXPECT_EQ(status(client, "3"), "Vac Certs OK");

    putCat(client, 2, {"Smudge", 1, 2010, "", "", 0, 0, 0}); // never vaccinated: always fails
    EXPECT_EQ(status(client, "40"), "At least one Vac Cert is more than 40 years old!");
}

} // namespace
} // namespace purrlodge
