#include "clients/GlobalSearch.h"

#include <gtest/gtest.h>

#include "clients/AutoMemo.h"
#include "store/ClientFiles.h"
#include "store/DataFolder.h"
#include "store/IndexOperations.h"
#include "support/FakePorts.h"
#include "support/TempFolder.h"

namespace purrlodge {
namespace {

using Lines = std::vector<std::string>;

// Quilliam, whose every field group holds "quill" in some case, then an index
// entry whose record is missing: read as empty, not as Quilliam again.
class GlobalSearchTest : public ::testing::Test {
protected:
    GlobalSearchTest()
    {
        ClientRecord quill{};
        quill.code.set("QuillQui");
        quill.style.set("Quill");
        quill.firstName.set("Quilla");
        quill.surname.set("Quilliam");
        quill.address[0].set("1 quill lane");
        quill.address[1].set("Quillbury");
        quill.telephone.set("0199 Quill");
        quill.mobile.set("QUILL 777::Quill");
        quill.vet.set("Quill Vets");
        quill.catName[0].set("Quilly");
        quill.catName[1].set("Tom");
        quill.catColour[0].set("quill grey");
        quill.catBreed[0].set("Quillback");
        quill.notes[0].set("Fed QUILLS");
        quill.favouriteFoods[0][0].set("Quilled fish");
        quill.favouriteFoods[1][2].set("Quill");
        quill.forbiddenFoods[0][0].set("QUILL");
        quill.email.set("quill@example.com");
        AutoMemo memo{};
        memo.text.set("quill memo");
        EXPECT_TRUE(writeClientRecord(folder, "QuillQui", quill) &&
                    folder.write(clientFileName("QuillQui", extension::autoMemo), memo));
        appendEntry(index, "Quilliam", "QuillQui");
        appendEntry(index, "Quantock", "QuantMis"); // no record on disc
    }

    GlobalSearchResult search(std::string text, bool caseSpecific,
                              GlobalSearchGroups groups = GlobalSearchGroups::all())
    {
        return globalSearch(folder, index, {std::move(text), caseSpecific, groups});
    }

    // A line of Quilliam's, the first index entry.
    static std::string quillLine(const std::string& field, const std::string& tag)
    {
        return " Quilliam\tQuilla\t" + field + "\t(" + tag + ")\t\t1 \tQuillQui";
    }

    testing::TempFolder temp;
    testing::FakePorts fakes;
    DataFolder folder{temp.path(), fakes.ui};
    ClientIndex index{};
};

TEST_F(GlobalSearchTest, EachTickedGroupListsItsMatchingFieldsInTheOldOrderAndForm)
{
    const Lines expected{
        quillLine("1 quill lane", "ADDRESS"), quillLine("Quillbury", "ADDRESS"),
        // The telephone is compared as stored against the upper-cased text,
        // and only the mobile number before "::" is searched.
        quillLine("QUILL 777", "Mob"), quillLine("Quill Vets", "VET"), quillLine("Quill", "STYLE"),
        quillLine("Quilliam", "SURNAME"), quillLine("Quilla", "FIRST NAME"),
        quillLine("Quilly", "CAT-NAME"),
        " Quilliam\tQuilla\tquill grey  (Quilly,Tom,,,,,) \t\tQuillQui",
        quillLine("Quillback", "CAT-BREED"), quillLine("Fed QUILLS", "NOTES"),
        quillLine("quill@example.com", "AUTO-NOTES"), // the e-mail stands for the memo
        quillLine("Quilled fish", "FAV-FOOD"), quillLine("Quill", "FAV-FOOD"),
        quillLine("QUILL", "FORBID-FOOD"),
        quillLine("quill@example.com", "FORBID-FOOD"), // the e-mail group's line
    };
    EXPECT_EQ(search("qUiLl", false).lines, expected);
    EXPECT_TRUE(search("qUiLl", false).showDetails);

    // Each box gates its own group: the e-mail alone (whose lines share the
    // forbidden foods' tag) finds none of the other groups' fields.
    GlobalSearchGroups emailOnly;
    emailOnly.email = true;
    EXPECT_EQ(search("quill", false, emailOnly).lines, Lines{expected[15]});
    EXPECT_EQ(search("QUILL", true).lines, (Lines{expected[2], expected[10], expected[14]}));

    // Nothing found, or nothing ticked, offers no details.
    Lines noMatch(10, "");
    noMatch.push_back("                     No match found");
    for (const auto& result : {search("Zebedee", false), search("Quill", true, {})}) {
        EXPECT_EQ(result.lines, noMatch);
        EXPECT_FALSE(result.showDetails);
    }
}

} // namespace
} // namespace purrlodge
