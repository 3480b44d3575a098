#include <gtest/gtest.h>

#include "app/CommandIds.h"
#include "app/Session.h"
#include "app/commands/ClientEntry.h"
#include "app/commands/ClientLookup.h"
#include "app/commands/FindClient.h"
#include "clients/LeavingCat.h"
#include "store/ClientFiles.h"
#include "store/IndexOperations.h"
#include "support/Bytes.h"
#include "support/FakePorts.h"
#include "support/FakeQuestions.h"
#include "support/TempFolder.h"

namespace purrlodge {
namespace {

using testing::bytesOf;
using testing::fileBytes;
using Rows = std::vector<std::string>;

// The commands that find, enter and show clients, on a session over a fresh
// data folder with their questions answered from scripts.
class ClientCommandsTest : public ::testing::Test {
protected:
    // Files a client owning Tigger, with a stay whose arrival names the code.
    void addClient(const std::string& surname, const std::string& code)
    {
        ClientRecord client{};
        client.surname.set(surname);
        client.catName[0].set("Tigger");
        StayRecord stay{};
        stay.arrivalDate.set(code);
        ASSERT_TRUE(writeClientRecord(session.folder, code, client) &&
                    writeStayRecord(session.folder, code, stay));
        appendEntry(session.index, surname, code);
    }

    // The finder of See Client Details, given the names typed.
    std::optional<FinderMatch> find(std::deque<std::optional<FinderEntry>> names)
    {
        questions.names = std::move(names);
        return findClient(session, static_cast<ClientLookupQuestions&>(questions),
                          command::seeClientDetails);
    }

    testing::TempFolder temp;
    testing::FakePorts fakes;
    Session session{fakes.ports(), temp.path()};
    testing::ScriptedClientQuestions questions;
};

TEST_F(ClientCommandsTest, ARefusedNameIsAskedAgainCancelLeavesTheSessionAndKeywordsEndIt)
{
    addClient("Wood", "WoodAnne");
    session.client.surname.set("Current");
    session.stay.arrivalDate.set("01/01/24");
    const std::string before = bytesOf(session.client) + bytesOf(session.stay);

    EXPECT_EQ(find({FinderEntry{"wood", FinderSearch::Cat}, std::nullopt}), std::nullopt);
    EXPECT_EQ(questions.namesShown,
              (std::vector<FinderEntry>{{"", FinderSearch::Person}, {"wood", FinderSearch::Cat}}));
    EXPECT_EQ(fakes.ui.titles(), Rows{"Name Error"});
    EXPECT_EQ(find({FinderEntry{"Wood"}}), std::nullopt) << "Cancel in Matching Clients";
    EXPECT_EQ(questions.matchRows.at(0), Rows{"Wood (Tigger)"});
    EXPECT_EQ(bytesOf(session.client) + bytesOf(session.stay), before);

    EXPECT_TRUE(finderOptionsFor(command::makeNotes).catOnly);
    EXPECT_TRUE(finderOptionsFor(command::editClientDetails).anyFirstCharacter);
    const FinderOptions ordinary = finderOptionsFor(command::seeClientDetails);
    EXPECT_FALSE(ordinary.catOnly || ordinary.anyFirstCharacter);

    // The inspect mode keywords switch diagnostics and end the finder.
    fakes.ui.messages.clear();
    EXPECT_EQ(find({FinderEntry{"InspectModeOn"}}), std::nullopt);
    EXPECT_TRUE(session.diagnostics);
    EXPECT_EQ(find({FinderEntry{"InspectModeOff"}}), std::nullopt);
    EXPECT_FALSE(session.diagnostics);
    EXPECT_TRUE(questions.matchRows.size() == 1 && fakes.ui.messages.empty());
}

TEST_F(ClientCommandsTest, TooManyMatchesIsShownAndTheChosenClientComesWithItsStay)
{
    for (int n = 10; n < 23; ++n)
        addClient("Wood", "WoodAn" + std::to_string(n));
    session.stay.departureDate.set("stale");
    questions.matches = {11};
    const std::optional<FinderMatch> match = find({FinderEntry{"Wood"}});
    EXPECT_EQ(fakes.ui.messages, (std::vector<Message>{{"Too Many Matches", "Matches > 12"}}));
    EXPECT_EQ(questions.matchRows.at(0), Rows(12, "Wood (Tigger)"));
    ASSERT_TRUE(match);
    EXPECT_EQ(match->code, "WoodAn21");
    EXPECT_EQ(bytesOf(session.client), fileBytes(temp.root() / "WoodAn21.DAT"));
    EXPECT_EQ(bytesOf(session.stay), fileBytes(temp.root() / "WoodAn21.TXI"));
}

TEST_F(ClientCommandsTest, NewClientAndEditClientDetailsSaveTheFormOverTheSession)
{
    ClientForm bob = newClientForm();
    bob.firstName = "Bob";
    bob.surname = "Adams";
    bob.known = "1";
    questions.clientForm.entries = {bob};
    newClient(session, questions);
    EXPECT_EQ(session.index.usedCount(), 1);
    EXPECT_EQ(fileBytes(temp.root() / "AdamsBob.DAT"), bytesOf(session.client));

    const ClientForm opened = clientFormFrom(session.client, fakes.clock);
    session.client = ClientRecord{};
    editClientDetails(session, questions);
    EXPECT_EQ(questions.clientForm.shown.size(), 1U) << "the finder was cancelled";
    questions.choose("Adams");
    ClientForm edited = opened;
    edited.style = "Dr";
    questions.clientForm.entries = {edited};
    editClientDetails(session, questions);
    EXPECT_EQ(questions.clientForm.shown.back(), opened);
    EXPECT_EQ(fileBytes(temp.root() / "AdamsBob.DAT"), bytesOf(session.client));
    EXPECT_EQ(session.client.style.str(), "Dr");

    for (int i = 1; i < maxClients; ++i)
        appendEntry(session.index, "Someone", "CODE" + std::to_string(i));
    newClient(session, questions);
    EXPECT_EQ(fakes.ui.titles(), Rows{"Client List Full"});
    EXPECT_EQ(questions.clientForm.shown.size(), 2U) << "the form did not open";
}

TEST_F(ClientCommandsTest, AClientIsSavedUnderItsIndexCodeAndNeverWhereTheIndexCannotSay)
{
    addClient("Adams", "AdamsBob");
    addClient("Smith", "SmithAnn");
    // Anne's record names Bob's code: editing her must not touch Bob's file.
    ClientRecord anne{};
    readClientRecord(session.folder, "SmithAnn", anne);
    anne.code.set("AdamsBob");
    ASSERT_TRUE(writeClientRecord(session.folder, "SmithAnn", anne));
    const std::string bob = fileBytes(temp.root() / "AdamsBob.DAT");

    questions.choose("Smith");
    ClientForm edited = clientFormFrom(anne, fakes.clock);
    edited.firstName = "Anne";
    edited.known = "2";
    questions.clientForm.entries = {edited};
    editClientDetails(session, questions);
    EXPECT_EQ(fileBytes(temp.root() / "AdamsBob.DAT"), bob);
    ClientRecord saved{};
    readClientRecord(session.folder, "SmithAnn", saved);
    EXPECT_EQ(saved.firstName.str(), "Anne");
    EXPECT_EQ(saved.code.str(), "SmithAnn") << "the record's code is put right";

    // A code that would reach outside the folder, and a record file that is
    // gone, are told when chosen; nothing is read, shown or written.
    appendEntry(session.index, "Cole", "../Cole");
    appendEntry(session.index, "Cole", "ColeGone");
    const std::string current = bytesOf(session.client);
    for (const int row : {0, 1}) {
        fakes.ui.messages.clear();
        questions.choose("Cole", row);
        questions.clientForm.entries = {edited};
        const std::size_t formsShown = questions.clientForm.shown.size();
        editClientDetails(session, questions);
        EXPECT_EQ(fakes.ui.titles(), Rows{"Data Error"});
        EXPECT_NE(fakes.ui.messages[0].text.find("(Cole, entry " + std::to_string(3 + row)),
                  std::string::npos)
            << fakes.ui.messages[0].text;
        EXPECT_EQ(questions.clientForm.shown.size(), formsShown);
        EXPECT_EQ(bytesOf(session.client), current);
    }
    EXPECT_FALSE(std::filesystem::exists(temp.root() / "ColeGone.DAT"));
    EXPECT_FALSE(std::filesystem::exists(temp.root().parent_path() / "Cole.DAT"));
}

TEST_F(ClientCommandsTest, LookUpsShowTheFilesOfTheCodeFoundAndGlobalSearchChoosesNoClient)
{
    addClient("Adams", "AdamsBob");
    addClient("Smith", "SmithAnn");
    ASSERT_TRUE(appendOtherCat(session.folder, "SmithAnn",
                               otherCatRecordOf({"Felix", "", "", 1, 2001}, {}, {}, 2009)));
    seeClientDetails(session, questions);
    globalSearch(session, questions);
    EXPECT_TRUE(questions.detailsShown.empty() && questions.results.empty()) << "cancelled";

    questions.choose("Smith");
    seeClientDetails(session, questions);
    ASSERT_EQ(questions.detailsShown.size(), 1U);
    EXPECT_EQ(questions.detailsShown[0].lines[0], "  Smith");
    EXPECT_TRUE(questions.detailsShown[0].otherCatsEnabled) << "the files of the code chosen";
    EXPECT_EQ(questions.otherCatsShown[0].heading.substr(0, 8), "\nSummary") << "not the notes";
    EXPECT_EQ(questions.otherCatsShown[0].lines.at(0).substr(0, 5), "Felix");
    EXPECT_TRUE(questions.specialNotesShown[0].lines.empty()) << "no note book";

    // A result line's details are read afresh and leave the current client.
    const std::string current = bytesOf(session.client);
    ClientRecord changed = session.client;
    changed.style.set("Dr");
    ASSERT_TRUE(writeClientRecord(session.folder, "SmithAnn", changed));
    questions.searches = {GlobalSearchRequest{"Tigger", true, GlobalSearchGroups::all()}};
    questions.detailsOfLines = {1, 0};
    globalSearch(session, questions);
    ASSERT_EQ(questions.detailsShown.size(), 3U);
    EXPECT_EQ(questions.detailsShown[1].lines[0], "Dr  Smith");
    EXPECT_EQ(questions.detailsShown[2].lines[0], "  Adams");
    EXPECT_EQ(bytesOf(session.client), current);
}

} // namespace
} // namespace purrlodge
