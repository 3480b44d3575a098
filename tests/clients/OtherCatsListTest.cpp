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

TEST(OtherCatsListTest, EachModeListsItsOwnFileThenTheOtherCats)
{
    testing::TempFolder temp;
    testing::FakePorts fakes;
    DataFolder folder{temp.path(), fakes.ui};
    ClientRecord client{};
    client.firstName.set("Anne");
    client.surname.set("Smith");
    const auto list = [&](OtherCatsMode mode) {
        return otherCatsListing(folder, "SmithAnn", client, mode);
    };
    EXPECT_TRUE(list(OtherCatsMode::NoteBook).lines.empty() &&
                list(OtherCatsMode::EarlierSpecialNotes).lines.empty());

    // Two whole earlier records and a torn third one, which is not listed; a
    // note-book line of 500 characters, one of 501 and a blank one.
    std::ofstream(folder.fileName("SmithAnn.XCT"), std::ios::binary)
        << bytesOf(earlierCat("Bramble", 4, "Allergic to fleas")) +
               bytesOf(earlierCat("Max", 2, " -- ")) + std::string(100, 'x');
    std::ofstream(folder.fileName("SmithAnn.NTS"), std::ios::binary)
        << "Needs a quiet pen\r\n" + std::string(500, 'a') + "\r\n\r\n" + std::string(501, 'b');
    // One former cat with notes and one without, as the client form files them.
    EXPECT_TRUE(appendOtherCat(folder, "SmithAnn",
                               otherCatRecordOf({"Tibbles", "Moggy", "Tabby", 2, 2001},
                                                {LeavingReason::NewHome, "Went to her sister"},
                                                CivilTime{2009, 3, 7}, 2009)));
    EXPECT_TRUE(
        appendOtherCat(folder, "SmithAnn",
                       otherCatRecordOf({"Sooty", "", "Black", 1, 2005}, {LeavingReason::Death, ""},
                                        CivilTime{2010, 1, 2}, 2010)));
    const Lines otherCats{
        "Tibbles  Moggy  Tabby Rehomed:    Born 2001,   Departed 07/03/09,   age 8",
        "     Went to her sister",
        "Sooty    Black :    Born 2005,   Departed 02/01/10,   age 5",
    };

    const OtherCatsListing earlier = list(OtherCatsMode::EarlierSpecialNotes);
    EXPECT_EQ(earlier.heading, "\nSummary of previous cats belonging to Anne Smith");
    Lines expected{
        "Bramble, Persian, Grey, f, DOB = 1998, Notified (Insurer) = 50",
        "Allergic to fleas",
        " ",
        "Max, Persian, Grey, m, DOB = 1998, Notified (Insurer) = 50", // the file's own sex coding
        " ",
    };
    expected.insert(expected.end(), otherCats.begin(), otherCats.end());
    EXPECT_EQ(earlier.lines, expected);

    const OtherCatsListing noteBook = list(OtherCatsMode::NoteBook);
    EXPECT_EQ(noteBook.heading, "Special Notes for:  Anne Smith");
    expected = {"Needs a quiet pen", std::string(500, 'a'), std::string(500, 'b'), "b"};
    expected.insert(expected.end(), otherCats.begin(), otherCats.end());
    EXPECT_EQ(noteBook.lines, expected);

    // A damaged note book of one endless line is read no further than a page allows.
    std::ofstream(folder.fileName("SmithAnn.NTS"), std::ios::binary)
        << std::string(4 * noteBookLargest, 'z');
    const Lines damaged = list(OtherCatsMode::NoteBook).lines;
    EXPECT_EQ(damaged.size(), (noteBookLargest + 499) / 500 + otherCats.size());
}

} // namespace
} // namespace purrlodge
