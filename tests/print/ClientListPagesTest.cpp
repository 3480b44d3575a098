#include "print/ClientListPages.h"

#include <gtest/gtest.h>

#include "print/PrintBuffer.h"
#include "store/CivilCalendar.h"
#include "support/FakePorts.h"

namespace purrlodge {
namespace {

using Lines = std::vector<std::string>;

std::int64_t utcNoon(int year, int month, int day)
{
    return daysFromCivil(year, month, day) * 86400 + 12 * 3600;
}

void setCat(ClientRecord& client, int slot, const char* name, const char* breed, const char* colour,
            int sex, int birthYear)
{
    client.catName[slot].set(name);
    client.catBreed[slot].set(breed);
    client.catColour[slot].set(colour);
    client.catSex[slot].set(sex);
    client.catBirthYear[slot].set(birthYear);
    client.catLastVaccination[slot].set(static_cast<std::int32_t>(utcNoon(2025, 3, 10)));
}

// Ann with two cats, Bob (inactive) with one, Cara with none.
std::vector<ListedClient> threeClients()
{
    std::vector<ListedClient> clients(3);
    ClientRecord& ann = clients[0].record;
    clients[0].code = "SMITH001";
    ann.style.set("Mrs");
    ann.firstName.set("Ann");
    ann.surname.set("Smith");
    ann.address[0].set("2 High Street");
    ann.address[1].set("Upton");
    ann.address[3].set("UP1 2CD");
    ann.telephone.set("01234 567890");
    ann.mobile.set("07700 900123::");
    setCat(ann, 0, "Tibbles", "Persian", "Cream", 2, 2019);
    setCat(ann, 1, "Smudge", "Moggy", "Black", 3, 0);
    ann.favouriteFoods[0][0].set("Fish");
    ann.favouriteFoods[0][1].set("Chicken");
    ann.notes[0].set("Nervous of dogs");
    ann.arrivalDate.set("01/10/26");
    ann.departureDate.set("08/10/26");
    ann.firstRegistered.set(static_cast<std::int32_t>(utcNoon(2020, 5, 1)));
    ann.knownRating.set(4);

    ClientRecord& bob = clients[1].record;
    clients[1].code = "JONES001";
    bob.style.set("Mr");
    bob.firstName.set("Bob");
    bob.surname.set("Jones");
    bob.address[0].set("The Mill");
    bob.telephone.set("555 1234");
    bob.lastInDate.set("02/02/24");
    bob.lastOutDate.set("09/02/24");
    setCat(bob, 0, "Kit", "", "Tabby", 0, 2024);
    bob.inactive.set(1);

    ClientRecord& cara = clients[2].record;
    clients[2].code = "BROWN001";
    cara.style.set("Ms");
    cara.firstName.set("Cara");
    cara.surname.set("Brown");
    return clients;
}

Lines textsOf(const PrintBuffer& buffer)
{
    return Lines(buffer.texts.begin(), buffer.texts.begin() + buffer.count);
}

class ClientListPagesTest : public ::testing::Test {
protected:
    ClientListPagesTest() { clock.setUtc(2026, 11, 25); }

    Lines pageTexts(const ListPages& pages)
    {
        EXPECT_EQ(pages.pageCount(), 1);
        pages.fillPage(buffer, 0);
        return textsOf(buffer);
    }

    testing::FakeClock clock;
    ClientListContext context{"Whiskers Lodge", clock};
    std::vector<ListedClient> clients = threeClients();
    PrintBuffer buffer;
};

TEST_F(ClientListPagesTest, ThePeopleListHasAClientABlockWithItsLinesSideBySide)
{
    EXPECT_EQ(pageTexts(peopleListPages(context, clients)),
              (Lines{"Whiskers Lodge", "People List", "25/11/26   -   3 clients", "Page 1 of 1",
                     " ", "Name", "Address", "Telephone", "Cats", " ",
                     // Ann: three rows
                     "Mrs Ann Smith", "2 High Street", "01234 567890", "Tibbles, Smudge", "Upton",
                     "Mob: 07700 900123", "UP1 2CD",
                     // Bob, then Cara with nothing but her name
                     "Mr Bob Jones", "The Mill", "555 1234", "Kit", "Ms Cara Brown"}));
    // A row's first text moves down a line, the rest share it at their
    // columns; a client's first row a little more.
    EXPECT_EQ(buffer.formats[10], "5, 0, 50, 4, n, 000, A");
    EXPECT_EQ(buffer.formats[11], "5, 8, -1, 4, n, 000, A");
    EXPECT_EQ(buffer.formats[13], "5, 23, -1, 4, n, 000, A");
    EXPECT_EQ(buffer.formats[14], "5, 8, 0, 4, n, 000, A") << "Upton starts the second row";
    EXPECT_EQ(buffer.formats[5], "5b, 0, 0, 4, n, 000, A") << "column headings in bold";
    EXPECT_EQ(buffer.formats[3], "5, 31, -1, 3, n, 000, R");
}

TEST_F(ClientListPagesTest, TheCatListHasACatALineAndLeavesOutClientsWithoutCats)
{
    EXPECT_EQ(pageTexts(catListPages(context, clients)),
              (Lines{"Whiskers Lodge", "Cat List", "25/11/26   -   3 cats", "Page 1 of 1", " ",
                     "Cat (sex, age)", "Colour and breed", "Owner", " ", "Tibbles (F, 7)",
                     "Cream Persian", "Mrs Ann Smith", "Smudge (m, ?)", "Black Moggy", "Kit (?, 2)",
                     "Tabby", "Mr Bob Jones"}));
}

TEST_F(ClientListPagesTest, TheFullListHoldsEverythingOfEachClient)
{
    clients.resize(1);
    clients[0].record.notes[1].set("#R# Diabetic - insulin");
    clients[0].record.catLastVaccination[1].set(0);
    EXPECT_EQ(pageTexts(fullClientListPages(context, clients)),
              (Lines{"Whiskers Lodge",
                     "Full Client List",
                     "25/11/26   -   1 client",
                     "Page 1 of 1",
                     " ",
                     " ",
                     " ",
                     "Client",
                     "Mrs Ann Smith",
                     "Address",
                     "2 High Street",
                     "Upton",
                     "UP1 2CD",
                     "Telephone",
                     "01234 567890",
                     "Mobile",
                     "07700 900123",
                     "E-mail",
                     "Vet",
                     "Cats",
                     "Tibbles  [F]  Age 7,  Cream Persian,  Chip? / Ins?,  Last Vac: 03/25",
                     "Smudge  [m]  Age ??,  Black Moggy,  Chip? / Ins?,  Last Vac: not known",
                     "Likes",
                     "Tibbles: Fish, Chicken",
                     "Notes",
                     "Nervous of dogs",
                     "Diabetic - insulin",
                     "Recent Visit",
                     "01/10/26 -> 08/10/26",
                     "Previous Visit",
                     "Not Recorded",
                     "Registered",
                     "01/05/2020   (Known rating 4)",
                     "Status",
                     "Active",
                     "Code",
                     "SMITH001"}));
    // The red notes line alone prints in red.
    EXPECT_EQ(buffer.formats[25], "5, 6, -1, 4, n, 000, A");
    EXPECT_EQ(buffer.formats[26], "5, 6, 0, 4, n, 900, A");
    EXPECT_EQ(buffer.formats[27], "5, 0, 0, 4, n, 000, A") << "Recent Visit";
}

TEST_F(ClientListPagesTest, TheListingHoldsTheActiveOrTheInactiveClientsOnly)
{
    EXPECT_EQ(
        pageTexts(clientListingPages(context, clients, ClientStatus::Active)),
        (Lines{"Whiskers Lodge", "Active Clients", "25/11/26   -   2 active clients", "Page 1 of 1",
               " ", "Name", "Telephone", "Cats", "Last Visit", " ", "Mrs Ann Smith", "01234 567890",
               "Tibbles, Smudge", "01/10/26 - 08/10/26", "Ms Cara Brown"}));
    EXPECT_EQ(pageTexts(clientListingPages(context, clients, ClientStatus::Inactive)),
              (Lines{"Whiskers Lodge", "Inactive Clients", "25/11/26   -   1 inactive client",
                     "Page 1 of 1", " ", "Name", "Telephone", "Cats", "Last Visit", " ",
                     "Mr Bob Jones", "555 1234", "Kit", "02/02/24 - 09/02/24"}));

    clients[1].record.inactive.set(0);
    const ListPages none = clientListingPages(context, clients, ClientStatus::Inactive);
    EXPECT_TRUE(none.blocks().empty());
    EXPECT_EQ(pageTexts(none).back(), "No current client is inactive.");
}

} // namespace
} // namespace purrlodge
