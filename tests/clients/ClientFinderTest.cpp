#include "clients/ClientFinder.h"

#include <gtest/gtest.h>
#include <tuple>

#include "store/ClientFiles.h"
#include "store/DataFolder.h"
#include "store/IndexOperations.h"
#include "support/FakePorts.h"
#include "support/TempFolder.h"

namespace purrlodge {
namespace {

using Lines = std::vector<std::string>;

class ClientFinderTest : public ::testing::Test {
protected:
    // Files a client under the code and adds it to the index (sorted later).
    void addClient(const std::string& surname, const std::string& code,
                   const std::vector<std::string>& cats = {})
    {
        ClientRecord client{};
        client.surname.set(surname);
        client.code.set(code);
        for (std::size_t slot = 0; slot < cats.size(); ++slot)
            client.catName[slot].set(cats[slot]);
        writeClientRecord(folder, code, client);
        appendEntry(index, surname, code);
    }

    FinderResult find(FinderSearch search, std::string_view text)
    {
        sortIndexEntries(index);
        return findClients(folder, index, search, text);
    }

    static std::vector<std::string> codes(const FinderResult& result)
    {
        std::vector<std::string> list;
        for (const auto& match : result.matches)
            list.push_back(match.code);
        return list;
    }

    testing::TempFolder temp;
    testing::FakePorts fakes;
    DataFolder folder{temp.path(), fakes.ui};
    ClientIndex index{};
};

TEST(ClientFinderName, KeywordsSwitchTheDiagnosticModeAndOtherTextsAreChecked)
{
    bool diagnostics = false;
    EXPECT_EQ(checkFinderName("InspectModeOn", false, diagnostics).verdict,
              FinderNameVerdict::DiagnosticsSwitched);
    EXPECT_TRUE(diagnostics);
    EXPECT_EQ(checkFinderName("InspectModeOff", true, diagnostics).verdict,
              FinderNameVerdict::DiagnosticsSwitched);
    EXPECT_FALSE(diagnostics);

    const Message noName{"You have not enetered a name!", "Name Error", MessageIcon::None};
    const Message noCapital{"The name does not start with a Capital Letter!!", "Name Error",
                            MessageIcon::None};
    for (const auto& [text, anyFirst, expected] :
         std::vector<std::tuple<std::string, bool, Message>>{
             {"", false, noName},
             {" .-", true, noName},
             {"inspectmodeon", false, noCapital}, // the keywords are exact
             {"InspectModeOn ", false, {}},
             {"wood", false, noCapital},
             {"'Neil", false, noCapital},
             {"wood", true, {}},
             {"Wood", false, {}},
         }) {
        const FinderNameCheck check = checkFinderName(text, anyFirst, diagnostics);
        if (expected.text.empty()) {
            EXPECT_EQ(check.verdict, FinderNameVerdict::Search) << text;
            EXPECT_FALSE(check.message) << text;
        } else {
            EXPECT_EQ(check.verdict, FinderNameVerdict::AskAgain) << text;
            EXPECT_EQ(check.message, expected) << text;
        }
    }
    EXPECT_FALSE(diagnostics);
}

TEST_F(ClientFinderTest, PersonSearchNeedsTheSameFirstLetterAndCase)
{
    addClient("Woodman", "WoodmJoe", {"Tom", "Kitty", "Sam"});
    addClient("Wood", "WoodAnne", {"Felix"});
    addClient("MaWood", "MaWooBob", {"Tigger"});
    addClient("wood", "woodLowr");
    addClient("Wolf", "WolfPete", {"", "Stray"}); // a gap: only the cats before it are listed
    addClient("Smith", "SmithAnn");
    addClient("Woodfield", "WoodfAl");

    const FinderResult result = find(FinderSearch::Person, "Wo");
    EXPECT_FALSE(result.tooManyMatches);
    EXPECT_EQ(result.rows, (Lines{"Wolf (No cat now)", "Wood (Felix)", "Woodfield (No cat now)",
                                  "Woodman (Tom, Kitty, Sam)"}));
    ASSERT_EQ(result.matches.size(), 4u);
    for (const auto& match : result.matches) {
        EXPECT_EQ(index.entries[match.indexPosition].code.str(), match.code) << match.surname;
        EXPECT_EQ(index.entries[match.indexPosition].key.str(), match.surname);
    }

    EXPECT_EQ(codes(find(FinderSearch::Person, "Wood")),
              (Lines{"WoodAnne", "WoodfAl", "WoodmJoe"}));
    EXPECT_EQ(codes(find(FinderSearch::Person, "man")), Lines{}) << "first letter differs";
    EXPECT_EQ(find(FinderSearch::Person, "Wx").rows, Lines{"No Client of name Wx found"});
}

TEST_F(ClientFinderTest, CatSearchMatchesAnyPartOfEveryCatName)
{
    addClient("Brown", "BrownAnn", {"Tigger", "Smudge", "Piggy"});
    addClient("Adams", "AdamsBob", {"Felix"});
    addClient("Cole", "ColeJo12", {"Pig"});
    addClient("Dunn", "DunnSue1", {"tIGer"});

    const FinderResult result = find(FinderSearch::Cat, "ig");
    EXPECT_EQ(result.rows, (Lines{"Brown (Tigger, Smudge, Piggy)", "Brown (Tigger, Smudge, Piggy)",
                                  "Cole (Pig)"}));
    EXPECT_EQ(codes(result), (Lines{"BrownAnn", "BrownAnn", "ColeJo12"}));
    for (const auto& match : result.matches)
        EXPECT_EQ(match.indexPosition, 0) << "a cat match leaves the index position alone";

    EXPECT_EQ(find(FinderSearch::Cat, "Rex").rows, Lines{"No Cat of name Rex found"});
}

TEST_F(ClientFinderTest, TwelveMatchesFitAndAThirteenthStopsTheSearch)
{
    for (int n = 10; n < 22; ++n)
        addClient("Wood", "WoodAn" + std::to_string(n), {"Tigger"});
    FinderResult result = find(FinderSearch::Person, "Wood");
    EXPECT_EQ(result.rows.size(), 12u);
    EXPECT_FALSE(result.tooManyMatches);
    EXPECT_EQ(find(FinderSearch::Cat, "Tig").matches.size(), 12u);
    EXPECT_FALSE(find(FinderSearch::Cat, "Tig").tooManyMatches);

    addClient("Wood", "WoodAn22", {"Tigger"});
    result = find(FinderSearch::Person, "Wood");
    EXPECT_EQ(result.tooManyMatches,
              (Message{"Too Many Matches", "Matches > 12", MessageIcon::None}));
    ASSERT_EQ(result.matches.size(), 12u);
    EXPECT_EQ(result.rows.size(), 12u);
    EXPECT_EQ(result.matches.back().indexPosition, 12);

    // Two cats of one client count as two matches.
    addClient("Adams", "AdamsBob", {"Tiggy", "Tigger"});
    result = find(FinderSearch::Cat, "Tig");
    EXPECT_EQ(result.tooManyMatches,
              (Message{"Too Many Matches", "Matches > 8", MessageIcon::None}));
    ASSERT_EQ(result.matches.size(), 12u);
    EXPECT_EQ(result.matches[0].code, "AdamsBob");
    EXPECT_EQ(result.matches[1].code, "AdamsBob");
}

} // namespace
} // namespace purrlodge
