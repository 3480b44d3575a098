#include "clients/GlobalSearch.h"

#include <gtest/gtest.h>
#include <memory>

#include "clients/AutoMemo.h"
#include "store/ClientFiles.h"
#include "store/DataFolder.h"
#include "store/IndexOperations.h"
#include "support/DataSetGenerator.h"
#include "support/FakePorts.h"
#include "support/TempFolder.h"

namespace purrlodge {
namespace {

using Lines = std::vector<std::string>;

constexpr std::string_view quillCode = "QuillQui";

// A generated data set of 590 clients (none of whose texts holds "quill" in
// any case), Quilliam, whose every field group holds it in some case, and an
// index entry whose record file is missing.
struct DataSet {
    testing::TempFolder temp;
    testing::FakePorts fakes;
    DataFolder folder{temp.path(), fakes.ui};
    ClientIndex index = testing::generateDataSet(folder, 590, 11);

    DataSet()
    {
        ClientRecord quill{};
        quill.code.set(quillCode);
        quill.style.set("Quill");
        quill.firstName.set("Quilla");
        quill.surname.set("Quilliam");
        quill.address[0].set("1 quill lane");
        quill.address[1].set("Quillbury");
        quill.address[3].set("QU1 1LL");
        quill.telephone.set("0199 Quill");
        quill.mobile.set("QUILL 777::Quill");
        quill.vet.set("Quill Vets");
        quill.catName[0].set("Quilly");
        quill.catName[1].set("Tom");
        quill.catColour[0].set("quill grey");
        quill.catColour[1].set("Black");
        quill.catBreed[0].set("Quillback");
        quill.notes[0].set("Fed QUILLS");
        quill.favouriteFoods[0][0].set("Quilled fish");
        quill.favouriteFoods[1][2].set("Quill");
        quill.forbiddenFoods[0][0].set("QUILL");
        quill.email.set("quill@example.com");
        writeClientRecord(folder, quillCode, quill);
        AutoMemo memo{};
        memo.text.set("quill memo");
        folder.write(clientFileName(quillCode, extension::autoMemo), memo);

        appendEntry(index, "Quilliam", quillCode);
        appendEntry(index, "Quantock", "QuantMis"); // no record on disc
        sortIndexEntries(index);
    }
};

class GlobalSearchTest : public ::testing::Test {
protected:
    static void SetUpTestSuite() { data = std::make_unique<DataSet>(); }
    static void TearDownTestSuite() { data.reset(); }

    static GlobalSearchResult search(std::string text, bool caseSpecific,
                                     GlobalSearchGroups groups = GlobalSearchGroups::all())
    {
        return globalSearch(data->folder, data->index, {std::move(text), caseSpecific, groups});
    }

    // A line of Quilliam's: " %s\t%s\t%s\t(%s)\t\t%d \t%s".
    static std::string quillLine(const std::string& field, const std::string& tag)
    {
        return " Quilliam\tQuilla\t" + field + "\t(" + tag + ")\t\t" +
               std::to_string(findCode(data->index, quillCode)) + " \t" + std::string(quillCode);
    }

    static inline std::unique_ptr<DataSet> data;
};

TEST_F(GlobalSearchTest, CaseSpecificSearchListsEachMatchingFieldInGroupOrder)
{
    const GlobalSearchResult result = search("Quill", true);
    EXPECT_TRUE(result.showDetails);
    EXPECT_EQ(result.lines, (Lines{
                                quillLine("Quillbury", "ADDRESS"),
                                quillLine("0199 Quill", "TEL"),
                                quillLine("Quill Vets", "VET"),
                                quillLine("Quill", "STYLE"),
                                quillLine("Quilliam", "SURNAME"),
                                quillLine("Quilla", "FIRST NAME"),
                                quillLine("Quilly", "CAT-NAME"),
                                quillLine("Quillback", "CAT-BREED"),
                                quillLine("Quilled fish", "FAV-FOOD"),
                                quillLine("Quill", "FAV-FOOD"),
                            }));
}

TEST_F(GlobalSearchTest, CaseIndependentSearchKeepsTheOldLineQuirks)
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
    EXPECT_EQ(search("quill", false).lines, expected);
    EXPECT_EQ(search("qUiLl", false).lines, expected);

    // Each group on its own gives just its own lines.
    const std::vector<std::pair<bool GlobalSearchGroups::*, Lines>> groups{
        {&GlobalSearchGroups::address, {expected[0], expected[1]}},
        {&GlobalSearchGroups::telMobile, {expected[2]}},
        {&GlobalSearchGroups::vet, {expected[3]}},
        {&GlobalSearchGroups::style, {expected[4]}},
        {&GlobalSearchGroups::surname, {expected[5]}},
        {&GlobalSearchGroups::firstName, {expected[6]}},
        {&GlobalSearchGroups::catName, {expected[7]}},
        {&GlobalSearchGroups::catColour, {expected[8]}},
        {&GlobalSearchGroups::catBreed, {expected[9]}},
        {&GlobalSearchGroups::notesAutoMemo, {expected[10], expected[11]}},
        {&GlobalSearchGroups::favouriteFood, {expected[12], expected[13]}},
        {&GlobalSearchGroups::forbiddenFood, {expected[14]}},
        {&GlobalSearchGroups::email, {expected[15]}},
    };
    for (const auto& [group, lines] : groups) {
        GlobalSearchGroups only;
        only.*group = true;
        EXPECT_EQ(search("quill", false, only).lines, lines) << lines.front();
    }
}

TEST_F(GlobalSearchTest, NothingFoundOrNothingTicked)
{
    Lines noMatch(10, "");
    noMatch.push_back("                     No match found");
    for (const auto& result : {search("Zebedee", false), search("Quill", true, {})}) {
        EXPECT_EQ(result.lines, noMatch);
        EXPECT_FALSE(result.showDetails);
    }
}

TEST_F(GlobalSearchTest, GeneratedDataSetInBothCaseModes)
{
    GlobalSearchGroups phones;
    phones.telMobile = true;
    // Every generated client has a telephone number starting 01632.
    for (const bool caseSpecific : {true, false}) {
        const Lines lines = search("01632", caseSpecific, phones).lines;
        EXPECT_EQ(lines.size(), 590u);
        EXPECT_TRUE(std::all_of(lines.begin(), lines.end(), [](const std::string& line) {
            return line.find("\t(TEL)\t\t") != std::string::npos;
        }));
    }

    // The generated texts hold "Ginger" and "ginger" but never both in one
    // field, so the case-independent lines are the two case-specific sets.
    const Lines anyCase = search("ginger", false).lines;
    const Lines upper = search("Ginger", true).lines;
    const Lines lower = search("ginger", true).lines;
    EXPECT_FALSE(upper.empty());
    EXPECT_FALSE(lower.empty());
    EXPECT_EQ(anyCase.size(), upper.size() + lower.size());
    EXPECT_EQ(search("GINGER", false).lines, anyCase);
    for (const Lines* some : {&upper, &lower}) {
        for (const auto& line : *some)
            EXPECT_NE(std::find(anyCase.begin(), anyCase.end(), line), anyCase.end()) << line;
    }

    // Every line ends in its client's code, by which the details are opened.
    for (const auto& line : anyCase)
        EXPECT_GT(findCode(data->index, codeOfResultLine(line)), 0) << line;
}

} // namespace
} // namespace purrlodge
