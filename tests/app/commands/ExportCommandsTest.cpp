#include <filesystem>
#include <gtest/gtest.h>

#include "app/Session.h"
#include "app/commands/Exports.h"
#include "store/ClientFiles.h"
#include "store/IndexOperations.h"
#include "support/Bytes.h"
#include "support/FakePorts.h"
#include "support/FakeQuestions.h"
#include "support/TempFolder.h"

namespace purrlodge {
namespace {

using Lines = std::vector<std::string>;
using testing::fileBytes;

struct Client {
    const char* code;
    const char* owner[3]; // title, first name, surname
    Lines cats;
    Lines address;
    const char* email;
    const char* lastOut;
    int inactive = 0;
};

// Three current clients around a cut-off of 1 June 2025, and two index
// entries that name no readable record; the questions answered from scripts.
class ExportCommandsTest : public ::testing::Test {
protected:
    void SetUp() override
    {
        add({"SMITHANN",
             {"Mrs", "Ann", "Smith"},
             {"Tom", "-", "Kit"},
             {"2 High St", " , ", "", "Upton"},
             "ann@example.com",
             "31/05/25"});
        appendEntry(session.index, "Gone", "GONEAWAY"); // no record file
        appendEntry(session.index, "Dots", "..");       // never a file name
        add({"LEEBOB",
             {"Mr", "Bob", "Lee"},
             {"", "Tom"},
             {"1 Low Rd"},
             "Not Known",
             "01/06/25",
             1});
        add({"JONESJO", {"Ms", "Jo", "Jones"}, {"Sam", "Tom"}, {}, "not known", "02/06/25"});
    }
    void add(const Client& c)
    {
        ClientRecord client{};
        client.code.set(c.code);
        client.style.set(c.owner[0]);
        client.firstName.set(c.owner[1]);
        client.surname.set(c.owner[2]);
        for (std::size_t i = 0; i < c.cats.size(); ++i)
            client.catName[i].set(c.cats[i]);
        for (std::size_t i = 0; i < c.address.size(); ++i)
            client.address[i].set(c.address[i]);
        client.email.set(c.email);
        client.lastOutDate.set(c.lastOut);
        client.inactive.set(c.inactive);
        ASSERT_TRUE(writeClientRecord(session.folder, c.code, client));
        appendEntry(session.index, c.owner[2], c.code);
    }
    [[nodiscard]] ClientRecord record(const char* code) const
    {
        ClientRecord client;
        readClientRecord(session.folder, code, client);
        return client;
    }
    [[nodiscard]] std::string file(const char* name) const { return fileBytes(temp.root() / name); }

    testing::TempFolder temp;
    testing::FakePorts fakes;
    Session session{fakes.ports(), temp.path()};
    testing::ScriptedExportQuestions questions;
};

TEST_F(ExportCommandsTest, AddressLabelsInEitherStyleTheStyleKeptForTheRun)
{
    questions.styles = {std::nullopt, LabelStyle::CatCareOf, LabelStyle::Plain};
    questions.openAnswers = {true, false};
    fileClientAddresses(session, questions);
    EXPECT_FALSE(std::filesystem::exists(temp.root() / "Clientlist.txt")) << "cancelled";

    fileClientAddresses(session, questions);
    // Bob's first cat has no name: his label is plain in either style.
    EXPECT_EQ(file("Clientlist.txt"), "Tom, Kit\nc\\o Mrs Ann Smith\n2 High St\nUpton\n\n"
                                      "Mr Bob Lee\n1 Low Rd\n\nSam, Tom\nc\\o Ms Jo Jones\n\n");
    EXPECT_EQ(fakes.ui.messages, (std::vector<Message>{{"3 names and addresses printed to file:\n" +
                                                            temp.path() + "Clientlist.txt",
                                                        "Completed"}}));
    EXPECT_EQ(questions.foldersOpened, Lines{temp.path()});

    fileClientAddresses(session, questions);
    EXPECT_EQ(file("Clientlist.txt"),
              "Mrs Ann Smith\n2 High St\nUpton\n\nMr Bob Lee\n1 Low Rd\n\nMs Jo Jones\n\n");
    EXPECT_EQ(questions.stylesShown, (std::vector<LabelStyle>{LabelStyle::Plain, LabelStyle::Plain,
                                                              LabelStyle::CatCareOf}));
    EXPECT_EQ(questions.openAsked, (Lines{"Clientlist.txt", "Clientlist.txt"}));
    EXPECT_EQ(questions.foldersOpened.size(), 1u) << "No opens nothing";
}

TEST_F(ExportCommandsTest, EmailsSpeltNotKnownAreLeftOutAndAFailedWriteIsNeverCompleted)
{
    std::filesystem::create_directory(temp.root() / "ClientEmails.txt");
    fileClientEmails(session, questions);
    EXPECT_EQ(fakes.ui.titles(), Lines{"File Error"});
    EXPECT_NE(fakes.ui.messages[0].text.find(temp.path() + "ClientEmails.txt"), std::string::npos);
    EXPECT_TRUE(questions.openAsked.empty());

    std::filesystem::remove(temp.root() / "ClientEmails.txt");
    fileClientEmails(session, questions);
    EXPECT_EQ(file("ClientEmails.txt"), "ann@example.com,\nnot known,\n");
    EXPECT_EQ(fakes.ui.messages.back().text,
              "2 email addresses printed to file:\n" + temp.path() + "ClientEmails.txt");
}

TEST_F(ExportCommandsTest, InactiveMarksOnlyClientsSeenBeforeTheDateAndRewritesEveryRecord)
{
    ClientRecord smith = record("SMITHANN");
    smith.code.set("JONESJO"); // a record naming another client inside it
    ASSERT_TRUE(writeClientRecord(session.folder, "SMITHANN", smith));
    // The date typed is read to its 23rd character: the second reads "01/06/2".
    session.clientCode = "LEEBOB";
    session.client = record("LEEBOB");
    questions.cutOffDates = {"01/06/25", "01/06/" + std::string(16, ' ') + "25"};
    markInactiveClients(session, questions);
    EXPECT_EQ(session.client.inactive.get(), 0) << "the current client takes the flag as filed";
    EXPECT_EQ(questions.inactiveResults,
              (Lines{"3 Clients examined\n1 Client Marked as Inactive",
                     "3 Clients examined\n0 Client Marked as Inactive"}));

    questions.cutOffDates = {"01/06/" + std::string(15, ' ') + "25"};
    markInactiveClients(session, questions);
    EXPECT_EQ(record("LEEBOB").inactive.get(), 0) << "seen on the day: active again";
    EXPECT_EQ(record("JONESJO").surname.str(), "Jones");
    smith.inactive.set(1);
    EXPECT_EQ(testing::bytesOf(record("SMITHANN")), testing::bytesOf(smith))
        << "nothing but the flag changes";
    EXPECT_FALSE(session.folder.exists("GONEAWAY.DAT"));

    // A record that cannot be written is told and ends the run there.
    std::filesystem::permissions(temp.root() / "LEEBOB.DAT", std::filesystem::perms::owner_read);
    questions.cutOffDates = {"01/01/30"};
    markInactiveClients(session, questions);
    EXPECT_EQ(questions.inactiveResults.back(), "1 Clients examined\n1 Client Marked as Inactive");
    EXPECT_EQ(fakes.ui.titles(), Lines{"File Error"});
    EXPECT_EQ(record("JONESJO").inactive.get(), 0);
}

TEST_F(ExportCommandsTest, NameListsAreFiledAndPrintedWithoutThePrintDialogOrItsRule)
{
    session.printDialog.modeInForce = 2;
    questions.fileListPresses = 1;
    questions.printAnswers = {true, true};
    countCatNames(session, questions);
    listUniqueNames(session, questions);
    EXPECT_EQ(questions.nameLists,
              (std::vector<Lines>{{"\tTom\t3", " ", "1 Unique Names"},
                                  {"\tKit\t1", "\tSam\t1", " ", "2 Unique Names"}}));
    EXPECT_EQ(file("PopularNames.txt"), "Tom\t3\n \n1 Unique Names\n");
    EXPECT_EQ(file("UniqueNames.txt"), "Kit\t1\nSam\t1\n \n2 Unique Names\n");
    EXPECT_EQ(fakes.ui.messages.at(0).text,
              "The list has been saved to the file:\n" + temp.path() + "PopularNames.txt");
    // The unique list prints the popular names too.
    EXPECT_EQ(fakes.printer.jobs,
              (std::vector<testing::FakePrinter::Job>{{"pop list", false}, {"pop list", false}}));
    EXPECT_EQ(session.printDialog.modeInForce, 2);
    EXPECT_FALSE(session.printDialog.printedWithDialog);

    // Smith alone has no name twice: the list is empty and prints no page.
    session.index.count.set(1);
    questions.printAnswers = {true};
    countCatNames(session, questions);
    EXPECT_EQ(questions.nameLists.back(), (Lines{" ", "0 Unique Names"}));
    EXPECT_EQ(fakes.printer.jobs.size(), 2u);
}

} // namespace
} // namespace purrlodge
