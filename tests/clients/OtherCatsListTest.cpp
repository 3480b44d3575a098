#include "clients/OtherCatsList.h"

#include <fstream>
#include <gtest/gtest.h>

#include "clients/EarlierCatRecord.h"
#include "clients/LeavingCat.h"
#include "store/DataFolder.h"
#include "support/Bytes.h"
#include "support/FakePorts.h"
#include "support/TempFolder.h"

namespace purrlodge {
namespace {

using Lines = std::vector<std::string>;
using testing::bytesOf;

EarlierCatRecord earlierCat(std::string_view name, int sex, std::string_view note)
{
    EarlierCatRecord cat{};
    cat.sex.set(sex);
    cat.name.set(name);
    cat.breed.set("Persian");
    cat.colour.set("Grey");
    cat.note.set(note);
    cat.dateOfBirth.set("1998");
    cat.notifiedValue.set("50");
    cat.notifiedTo.set("Insurer");
    return cat;
}

class OtherCatsListTest : public ::testing::Test {
protected:
    OtherCatsListTest()
    {
        client.firstName.set("Anne");
        client.surname.set("Smith");
    }

    void writeFile(std::string_view name, const std::string& bytes)
    {
        std::ofstream(folder.fileName(name), std::ios::binary) << bytes;
    }

    // One former cat with notes and one without, as the client form files them.
    void fileTwoOtherCats()
    {
        appendOtherCat(folder, "SmithAnn",
                       otherCatRecordOf({"Tibbles", "Moggy", "Tabby", 2, 2001},
                                        {LeavingReason::NewHome, "Went to her sister"},
                                        CivilTime{2009, 3, 7}, 2009));
        appendOtherCat(folder, "SmithAnn",
                       otherCatRecordOf({"Sooty", "", "Black", 1, 2005}, {LeavingReason::Death, ""},
                                        CivilTime{2010, 1, 2}, 2010));
    }

    testing::TempFolder temp;
    testing::FakePorts fakes;
    DataFolder folder{temp.path(), fakes.ui};
    ClientRecord client{};
};

TEST_F(OtherCatsListTest, EarlierSpecialNotesThenTheOtherCats)
{
    // Two whole records and a torn third one, which is not listed.
    writeFile("SmithAnn.XCT", bytesOf(earlierCat("Bramble", 4, "Allergic to fleas")) +
                                  bytesOf(earlierCat("Max", 1, " -- ")) + std::string(100, 'x'));
    fileTwoOtherCats();

    const OtherCatsListing listing =
        otherCatsListing(folder, "SmithAnn", client, OtherCatsMode::EarlierSpecialNotes);
    const Lines expected{
        "Bramble, Persian, Grey, f, DOB = 1998, Notified (Insurer) = 50",
        "Allergic to fleas",
        " ",
        "Max, Persian, Grey, M, DOB = 1998, Notified (Insurer) = 50",
        " ",
        "Tibbles  Moggy  Tabby Rehomed:    Born 2001,   Departed 07/03/09,   age 8",
        "     Went to her sister",
        "Sooty    Black :    Born 2005,   Departed 02/01/10,   age 5",
    };
    EXPECT_EQ(listing.lines, expected);
    EXPECT_EQ(listing.heading, "\nSummary of previous cats belonging to Anne Smith");
}

TEST(OtherCatsList, EarlierCatsKeepTheirOwnSexCoding)
{
    std::string letters;
    for (int sex = 0; sex <= 4; ++sex)
        letters += earlierCatSexLetter(sex);
    EXPECT_EQ(letters, "MMmFf");
}

TEST_F(OtherCatsListTest, NoteBookListsItsNonEmptyLinesThenTheOtherCats)
{
    const std::string longLine(1200, 'n');
    writeFile("SmithAnn.NTS", "Needs a quiet pen\r\n\r\nNo fish\r\n" + longLine + "\r\n");
    fileTwoOtherCats();

    const OtherCatsListing listing =
        otherCatsListing(folder, "SmithAnn", client, OtherCatsMode::NoteBook);
    EXPECT_EQ(listing.heading, "Special Notes for:  Anne Smith");
    ASSERT_EQ(listing.lines.size(), 8u);
    EXPECT_EQ(listing.lines[0], "Needs a quiet pen");
    EXPECT_EQ(listing.lines[1], "No fish");
    EXPECT_EQ(listing.lines[2], std::string(500, 'n'));
    EXPECT_EQ(listing.lines[4], std::string(200, 'n'));
    EXPECT_EQ(listing.lines[5].substr(0, 7), "Tibbles");
}

TEST_F(OtherCatsListTest, MissingFilesListNothing)
{
    EXPECT_TRUE(otherCatsListing(folder, "SmithAnn", client, OtherCatsMode::EarlierSpecialNotes)
                    .lines.empty());
    EXPECT_TRUE(
        otherCatsListing(folder, "SmithAnn", client, OtherCatsMode::NoteBook).lines.empty());
    EXPECT_TRUE(fakes.ui.messages.empty());
}

} // namespace
} // namespace purrlodge
