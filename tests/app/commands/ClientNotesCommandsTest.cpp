#include <filesystem>
#include <gtest/gtest.h>

#include "accounts/CatteryFiles.h"
#include "app/Session.h"
#include "app/commands/ClientNotes.h"
#include "app/commands/ClientRemoval.h"
#include "clients/AutoMemoReminder.h"
#include "clients/NoteBook.h"
#include "clients/PastClients.h"
#include "store/ClientFiles.h"
#include "store/IndexOperations.h"
#include "support/Bytes.h"
#include "support/FakePorts.h"
#include "support/FakeQuestions.h"
#include "support/TempFolder.h"

namespace purrlodge {
namespace {

using Lines = std::vector<std::string>;
using testing::bytesOf;
using testing::fileBytes;

// Two current clients, Smith (three cats) and Jones, whose codes share their
// first letters with a stranger's file; the questions answered from scripts.
class ClientNotesCommandsTest : public ::testing::Test {
protected:
    void SetUp() override
    {
        fakes.clock.setUtc(2026, 11, 25);
        addClient("Smith", "Ann", "SMITHANN", {"Tom", "Kit", "Sam"});
        addClient("Jones", "Tom", "SMITHAN", {"Sooty"});
        ASSERT_TRUE(writeIndex(session.folder, session.index));
        for (const char* name : {"SMITHANN.TXI", "SMITHANN.ACR", "SMITHANN.NTS", "SMITHANN.ANT"})
            ASSERT_TRUE(session.folder.write(name, std::array<char, 4>{'d', 'a', 't', 'a'}));
    }

    void addClient(const char* surname, const char* first, const char* code, const Lines& cats)
    {
        ClientRecord client{};
        client.style.set("Mrs");
        client.firstName.set(first);
        client.surname.set(surname);
        client.address[0].set("2 High St");
        client.address[2].set("Upton");
        for (std::size_t cat = 0; cat < cats.size(); ++cat)
            client.catName[cat].set(cats[cat]);
        ASSERT_TRUE(writeClientRecord(session.folder, code, client));
        appendEntry(session.index, surname, code);
    }

    [[nodiscard]] Lines files() const
    {
        Lines names;
        for (const auto& entry : std::filesystem::directory_iterator(temp.root()))
            names.push_back(entry.path().filename().string());
        std::sort(names.begin(), names.end());
        return names;
    }
    [[nodiscard]] std::string indexBytes(const char* name) const
    {
        return fileBytes(temp.root() / name);
    }

    testing::TempFolder temp;
    testing::FakePorts fakes;
    Session session{fakes.ports(), temp.path()};
    testing::ScriptedNotesQuestions questions;
};

TEST_F(ClientNotesCommandsTest, TheNoteBookIsKeptByItsLastLineAndTheMemoAndNoteByTheirLimits)
{
    questions.choose("Smith");
    questions.noteBook.entries = {{"Nervous of dogs", "", "Felix: drops"}};
    makeNotes(session, questions);
    EXPECT_EQ(questions.asked, Lines{"Notes for Mrs Ann Smith"});
    EXPECT_EQ(fileBytes(temp.root() / "SMITHANN.NTS"), "Nervous of dogs\r\n\r\nFelix: drops\r\n");
    EXPECT_EQ(readNoteBook(session.folder, "SMITHANN"),
              (Lines{"Nervous of dogs", "", "Felix: drops"}));

    for (const Lines& dropped : {Lines{"Nervous of dogs", "  "}, Lines{". . ,"}}) {
        ASSERT_TRUE(saveNoteBook(session.folder, "SMITHANN", {"kept"}));
        ASSERT_TRUE(saveNoteBook(session.folder, "SMITHANN", dropped));
        EXPECT_FALSE(session.folder.exists("SMITHANN.NTS")) << dropped.front();
    }

    questions.choose("Smith");
    const std::string thousand(autoMemoLimit, 'm');
    questions.autoMemo.entries = {thousand + "xyz"};
    setAutoMemo(session, questions);
    EXPECT_EQ(session.folder.fileSize("SMITHANN.ANT"), 1001u);
    EXPECT_EQ(readAutoMemo(session.folder, "SMITHANN"), thousand);
    ASSERT_TRUE(saveAutoMemo(session.folder, "SMITHANN", "Drops\nBlanket\r\n"));
    EXPECT_EQ(readAutoMemo(session.folder, "SMITHANN"), "Drops\r\nBlanket\r\n")
        << "line ends kept as CR LF";

    questions.accountNote.entries = {std::string(accountNoteLimit, 'n') + "cut"};
    setAccountNote(session, questions);
    RatesRecord saved{};
    loadRates(session.folder, saved);
    EXPECT_EQ(saved.accountNote.str(), std::string(accountNoteLimit, 'n'));
    EXPECT_EQ(bytesOf(saved), bytesOf(session.rates));
}

TEST_F(ClientNotesCommandsTest, RemovingForGoodTakesEveryFileOfTheCodeAndNoOther)
{
    const std::string before = indexBytes("FIDEX.CTL");
    questions.choose("Smith");
    questions.deletions = {ClientDeletionChoice::RemoveForGood};
    questions.confirmations = {false};
    deleteClient(session, questions);
    EXPECT_EQ(indexBytes("FIDEX.CTL"), before) << "No keeps everything";
    EXPECT_EQ(questions.asked.at(0), "You can completely remove all files relating to Mrs Ann "
                                     "Smith\nor\ntransfer them to your 'Old Client' file");

    questions.choose("Smith");
    questions.deletions = {ClientDeletionChoice::RemoveForGood};
    questions.confirmations = {true};
    deleteClient(session, questions);
    EXPECT_EQ(files(), (Lines{"FIDEX.CTL", "SMITHAN.DAT"}));
    EXPECT_EQ(session.index.usedCount(), 1);
    EXPECT_EQ(indexBytes("FIDEX.CTL"), bytesOf(session.index));
    EXPECT_TRUE(session.clientCode.empty()) << "no client is current";
}

TEST_F(ClientNotesCommandsTest, PastClientsAreListedRestoredMovedBackAndDeleted)
{
    ClientIndex past{};
    questions.choose("Smith");
    questions.deletions = {ClientDeletionChoice::Transfer};
    deleteClient(session, questions);
    ASSERT_TRUE(readStoredPastIndex(session.folder, past));
    EXPECT_EQ(past.usedCount(), 1);
    EXPECT_EQ(findCode(session.index, "SMITHANN"), -1);
    EXPECT_TRUE(session.folder.exists("SMITHANN.ACR")) << "a transfer keeps the files";
    const std::string currentAfterTransfer = indexBytes("FIDEX.CTL");
    const std::string pastAfterTransfer = indexBytes("OFIDEX.CTL");

    questions.pastChoices = {PastClientChoice{PastClientAction::Restore, -1},
                             PastClientChoice{PastClientAction::ShowDetails, 0},
                             PastClientChoice{PastClientAction::Restore, 0}};
    viewPastClients(session, questions);
    EXPECT_EQ(questions.pastLists.at(0),
              Lines{" Smith Ann\tTom,Kit,Sam,\t2 High St,Upton,\tSMITHANN"});
    EXPECT_EQ(questions.asked.back(), "Previous Client list as on Wednesday 25/11/2026");
    EXPECT_EQ(fakes.ui.titles(), Lines{"Error"}) << "No Line Selected";
    EXPECT_EQ(questions.detailsShown.at(0).caption, "Detais of Previous Client Mrs Ann Smith");
    EXPECT_NE(findCode(session.index, "SMITHANN"), -1);

    questions.choose("Smith");
    questions.deletions = {ClientDeletionChoice::Transfer};
    deleteClient(session, questions);
    EXPECT_EQ(indexBytes("FIDEX.CTL"), currentAfterTransfer) << "restore then transfer";
    EXPECT_EQ(indexBytes("OFIDEX.CTL"), pastAfterTransfer);

    fakes.ui.messages.clear();
    std::filesystem::remove(temp.root() / "SMITHANN.DAT");
    questions.pastChoices = {PastClientChoice{PastClientAction::Delete, 0}, std::nullopt};
    questions.confirmations = {true};
    viewPastClients(session, questions);
    const std::size_t shown = questions.pastLists.size();
    EXPECT_EQ(questions.pastLists.at(shown - 2), Lines{"  \t(No cat) \t\tSMITHANN"})
        << "a record that is gone still lists its code";
    EXPECT_TRUE(questions.pastLists.back().empty());
    EXPECT_EQ(files(), (Lines{"FIDEX.CTL", "OFIDEX.CTL", "SMITHAN.DAT"}));
    ASSERT_TRUE(readStoredPastIndex(session.folder, past));
    EXPECT_EQ(past.usedCount(), 0);
}

TEST_F(ClientNotesCommandsTest, APastClientsCatsShowThreeNamesThenAPlusForEachFurtherCat)
{
    addClient("Many", "Cat", "MANYCAT", {"Tom", "Kit", "Sam", "Bob", "Pip"});
    const int entry = findCode(session.index, "MANYCAT");
    ASSERT_TRUE(transferToPastClients(session.folder, session.index, entry));
    questions.pastChoices = {PastClientChoice{PastClientAction::Delete, 7}, std::nullopt};
    viewPastClients(session, questions);
    EXPECT_EQ(questions.pastLists.at(0),
              Lines{" Many Cat\tTom,Kit,Sam,++\t2 High St,Upton,\tMANYCAT"});
    EXPECT_EQ(fakes.ui.titles(), Lines{"Error"});
}

} // namespace
} // namespace purrlodge
