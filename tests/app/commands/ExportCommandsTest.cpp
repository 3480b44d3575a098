#include <algorithm>
#include <filesystem>
#include <gtest/gtest.h>

#include "app/Session.h"
#include "app/commands/Exports.h"
#include "store/ClientFiles.h"
#include "store/IndexOperations.h"
#include "support/Bytes.h"
#include "support/DataSetGenerator.h"
#include "support/FakePorts.h"
#include "support/FakeQuestions.h"
#include "support/TempFolder.h"

namespace purrlodge {
namespace {

using Lines = std::vector<std::string>;
using testing::fileBytes;

// Two current clients whose cats share one name; the questions answered from
// scripts.
class ExportCommandsTest : public ::testing::Test {
protected:
    void SetUp() override
    {
        addClient("SMITHANN", "Smith", {"Tom", "Kit"}, "ann@example.com", "31/05/25");
        addClient("JONESTOM", "Jones", {"Tom"}, "Not Known", "01/06/25");
    }
    void addClient(const char* code, const char* surname, const Lines& cats, const char* email,
                   const char* lastIn)
    {
        ClientRecord client{};
        client.style.set("Mrs");
        client.firstName.set("Ann");
        client.surname.set(surname);
        client.address[0].set("2 High St");
        client.email.set(email);
        client.lastInDate.set(lastIn);
        for (std::size_t slot = 0; slot < cats.size(); ++slot)
            client.catName[slot].set(cats[slot]);
        ASSERT_TRUE(writeClientRecord(session.folder, code, client));
        appendEntry(session.index, surname, code);
    }
    [[nodiscard]] std::string file(const char* name) const { return fileBytes(temp.root() / name); }

    testing::TempFolder temp;
    testing::FakePorts fakes;
    Session session{fakes.ports(), temp.path()};
    testing::ScriptedExportQuestions questions;
};

TEST_F(ExportCommandsTest, TheAddressFileIsWrittenInTheStyleChosenWhichIsKeptForTheRun)
{
    questions.styles = {std::nullopt};
    fileClientAddresses(session, questions);
    EXPECT_FALSE(std::filesystem::exists(temp.root() / "Clientlist.txt")) << "cancelled";

    questions.styles = {LabelStyle::CatCareOf, LabelStyle::Plain};
    questions.openAnswers = {true, false};
    fileClientAddresses(session, questions);
    EXPECT_EQ(file("Clientlist.txt"), "Tom, Kit\nc\\o Mrs Ann Smith\n2 High St\n\n"
                                      "Tom\nc\\o Mrs Ann Jones\n2 High St\n\n");
    ASSERT_EQ(fakes.ui.messages.size(), 1u);
    EXPECT_EQ(fakes.ui.messages[0],
              (Message{"2 names and addresses printed to file:\n" + temp.path() + "Clientlist.txt",
                       "Completed"}));
    EXPECT_EQ(questions.foldersOpened, Lines{temp.path()});

    fileClientAddresses(session, questions);
    EXPECT_EQ(file("Clientlist.txt"), "Mrs Ann Smith\n2 High St\n\nMrs Ann Jones\n2 High St\n\n")
        << "a shorter file leaves nothing of the longer one";
    EXPECT_EQ(questions.stylesShown, (std::vector<LabelStyle>{LabelStyle::Plain, LabelStyle::Plain,
                                                              LabelStyle::CatCareOf}));
    EXPECT_EQ(questions.openAsked, (Lines{"Clientlist.txt", "Clientlist.txt"}));
    EXPECT_EQ(questions.foldersOpened.size(), 1u) << "No opens nothing";
}

TEST_F(ExportCommandsTest, AnEmailFileThatCannotBeWrittenIsToldAndNotReportedCompleted)
{
    std::filesystem::create_directory(temp.root() / "ClientEmails.txt");
    fileClientEmails(session, questions);
    EXPECT_EQ(fakes.ui.titles(), Lines{"File Error"});
    EXPECT_NE(fakes.ui.messages[0].text.find(temp.path() + "ClientEmails.txt"), std::string::npos);
    EXPECT_TRUE(questions.openAsked.empty());

    std::filesystem::remove(temp.root() / "ClientEmails.txt");
    fileClientEmails(session, questions);
    EXPECT_EQ(file("ClientEmails.txt"), "ann@example.com,\n");
    EXPECT_EQ(fakes.ui.messages.back().text,
              "1 email addresses printed to file:\n" + temp.path() + "ClientEmails.txt");
}

TEST_F(ExportCommandsTest, EachOkOfInactiveClientsMarksAgainstTheDateTyped)
{
    questions.cutOffDates = {"01/06/25", "dd/mm/yy", "02/06/25"};
    markInactiveClients(session, questions);
    EXPECT_EQ(questions.inactiveResults,
              (Lines{"2 Clients examined\n1 Client Marked as Inactive",
                     "2 Clients examined\n0 Client Marked as Inactive",
                     "2 Clients examined\n2 Client Marked as Inactive"}));
    ClientRecord jones;
    readClientRecord(session.folder, "JONESTOM", jones);
    EXPECT_EQ(jones.inactive.get(), 1);
}

TEST_F(ExportCommandsTest, ThePopularListIsFiledAndPrintedWithoutTheDialogOrItsRule)
{
    session.printDialog.modeInForce = 2;
    questions.fileListPresses = 1;
    questions.printAnswers = {true};
    countCatNames(session, questions);
    EXPECT_EQ(questions.nameLists, (std::vector<Lines>{{"\tTom\t2", " ", "1 Unique Names"}}));
    EXPECT_EQ(file("PopularNames.txt"), "Tom\t2\n \n1 Unique Names\n");
    EXPECT_EQ(fakes.ui.messages.at(0).text,
              "The list has been saved to the file:\n" + temp.path() + "PopularNames.txt");
    EXPECT_EQ(fakes.printer.jobs, (std::vector<testing::FakePrinter::Job>{{"pop list", false}}));
    EXPECT_EQ(session.printDialog.modeInForce, 2);
    EXPECT_FALSE(session.printDialog.printedWithDialog);

    // The unique list prints the popular names too.
    questions.printAnswers = {true};
    listUniqueNames(session, questions);
    EXPECT_EQ(questions.nameLists.back(), (Lines{"\tKit\t1", " ", "1 Unique Names"}));
    EXPECT_EQ(file("UniqueNames.txt"), "Kit\t1\n \n1 Unique Names\n");
    EXPECT_EQ(fakes.printer.jobs.size(), 2u);

    // Close prints nothing.
    questions.fileListPresses = 0;
    countCatNames(session, questions);
    EXPECT_EQ(fakes.printer.jobs.size(), 2u);
}

TEST_F(ExportCommandsTest, WithNoNameTwicePrintPrintsNoPage)
{
    ClientRecord jones;
    readClientRecord(session.folder, "JONESTOM", jones);
    jones.catName[0].set("Sam");
    ASSERT_TRUE(writeClientRecord(session.folder, "JONESTOM", jones));
    questions.printAnswers = {true};
    countCatNames(session, questions);
    EXPECT_EQ(questions.nameLists.back(), (Lines{" ", "0 Unique Names"}));
    EXPECT_TRUE(fakes.printer.jobs.empty());
}

TEST(ExportCommandsOnAFullDataSet, EveryClientIsFiledAndCountedAsWritten)
{
    testing::TempFolder temp;
    testing::FakePorts fakes;
    Session session{fakes.ports(), temp.path()};
    session.index = testing::generateDataSet(session.folder, maxClients, 11);
    testing::ScriptedExportQuestions questions;
    questions.styles = {LabelStyle::Plain};
    fileClientAddresses(session, questions);
    fileClientEmails(session, questions);
    ASSERT_EQ(fakes.ui.messages.size(), 2u);
    EXPECT_EQ(fakes.ui.messages[0].text.substr(0, 40), "599 names and addresses printed to file:");
    const std::string emails = fileBytes(temp.root() / "ClientEmails.txt");
    const auto lines = std::count(emails.begin(), emails.end(), '\n');
    EXPECT_GT(lines, 300); // about three clients in four have one
    EXPECT_EQ(fakes.ui.messages[1].text, std::to_string(lines) +
                                             " email addresses printed to file:\n" + temp.path() +
                                             "ClientEmails.txt");
}

} // namespace
} // namespace purrlodge
