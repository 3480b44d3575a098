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
        for (std::size_t slot = 0; slot < cats.size(); ++slot)
            client.catName[slot].set(cats[slot]);
        ASSERT_TRUE(writeClientRecord(folder, code, client));
        appendEntry(index, surname, code);
    }

    FinderResult find(FinderSearch search, std::string_view text)
    {
        sortIndexEntries(index);
        return findClients(folder, index, search, text);
    }

    testing::TempFolder temp;
    testing::FakePorts fakes;
    DataFolder folder{temp.path(), fakes.ui};
    ClientIndex index{};
};

// The keywords themselves, and "wood" refused and "Wood" searched, are driven
// through the finder in ClientCommandsTest.
TEST(ClientFinderName, ANameNeedsALetterOrDigitAndACapitalFirstUnlessAnyIsAllowed)
{
    bool diagnostics = false;
    const Message noName{"You have not enetered a name!", "Name Error"};
    const Message noCapital{"The name does not start with a Capital Letter!!", "Name Error"};
    for (const auto& [text, anyFirst, refusal] :
         std::vector<std::tuple<std::string, bool, std::optional<Message>>>{
             {" .-", true, noName},
             {"inspectmodeon", false, noCapital}, // the keywords are exact
             {"InspectModeOn ", false, {}},
             {"'Neil", false, noCapital},
             {"wood", true, {}},
         }) {
        const FinderNameCheck check = checkFinderName(text, anyFirst, diagnostics);
        EXPECT_EQ(check.verdict, refusal ? FinderNameVerdict::AskAgain : FinderNameVerdict::Search)
            << text;
        EXPECT_EQ(check.message, refusal) << text;
    }
    EXPECT_FALSE(diagnostics);
}

TEST_F(ClientFinderTest, PersonSearchNeedsTheFirstLetterAndCaseCatSearchAnyPartOfAName)
{
    addClient("Woodman", "WoodmJoe", {"Tom", "Kitty", "Sam"});
    addClient("Wood", "WoodAnne", {"Felix", "Piggy"});
    addClient("MaWood", "MaWooBob", {"Tigger"});
    addClient("wood", "woodLowr", {"tIGer"});
    addClient("Wolf", "WolfPete", {"", "Stray"}); // a gap: only the cats before it are listed

    const FinderResult people = find(FinderSearch::Person, "Wo");
    EXPECT_FALSE(people.tooManyMatches);
    EXPECT_EQ(people.rows,
              (Lines{"Wolf (No cat now)", "Wood (Felix, Piggy)", "Woodman (Tom, Kitty, Sam)"}));
    EXPECT_EQ(index.entries[people.matches[1].indexPosition].code.str(), "WoodAnne");
    EXPECT_EQ(find(FinderSearch::Person, "man").rows, Lines{"No Client of name man found"});

    const FinderResult cats = find(FinderSearch::Cat, "ig");
    EXPECT_EQ(cats.rows, (Lines{"MaWood (Tigger)", "Wood (Felix, Piggy)"}));
    EXPECT_EQ(cats.matches[1].code, "WoodAnne");
    EXPECT_EQ(cats.matches[0].indexPosition, 0) << "a cat match leaves the index position alone";
    EXPECT_EQ(find(FinderSearch::Cat, "Rex").rows, Lines{"No Cat of name Rex found"});
}

TEST_F(ClientFinderTest, TwelveMatchesFitAndAThirteenthStopsTheSearch)
{
    for (int n = 10; n < 22; ++n)
        addClient("Wood", "WoodAn" + std::to_string(n), {"Tigger"});
    FinderResult result = find(FinderSearch::Person, "Wood");
    EXPECT_EQ(result.rows.size(), 12u);
    EXPECT_FALSE(result.tooManyMatches);
    result = find(FinderSearch::Cat, "Tig");
    EXPECT_EQ(result.matches.size(), 12u);
    EXPECT_FALSE(result.tooManyMatches);

    // A thirteenth stops the search (ClientCommandsTest shows the person search's
    // message and rows); two cats of one client count as two matches, and
    // the cat search's message has always said 8.
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
