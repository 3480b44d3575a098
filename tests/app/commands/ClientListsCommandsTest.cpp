#include <gtest/gtest.h>

#include "app/Session.h"
#include "app/commands/ClientLists.h"
#include "housekeeping/ListedClients.h"
#include "print/PageLayout.h"
#include "print/PrintBuffer.h"
#include "print/PrintedWidth.h"
#include "store/ClientFiles.h"
#include "support/DataSetGenerator.h"
#include "support/FakePorts.h"
#include "support/TempFolder.h"

namespace purrlodge {
namespace {

using Jobs = std::vector<testing::FakePrinter::Job>;
using Lines = std::vector<std::string>;

// Looks at every list offered, then prints the ones in `toPrint`.
struct ScriptedClientListQuestions : ClientListQuestions {
    void showClientList(ClientListChoice initial, const ListFor& listFor,
                        const PrintList& print) override
    {
        shownFirst = initial;
        for (ClientListChoice choice : clientListChoices)
            pagesShown.push_back(listFor(choice).pageCount());
        for (ClientListChoice choice : toPrint)
            print(choice);
    }
    std::optional<ClientListChoice> chooseClientList(ClientListChoice) override { return chosen; }

    std::vector<ClientListChoice> toPrint;
    std::optional<ClientListChoice> chosen;
    std::optional<ClientListChoice> shownFirst;
    std::vector<int> pagesShown;
};

class ClientListsCommandsTest : public ::testing::Test {
protected:
    testing::TempFolder temp;
    testing::FakePorts fakes;
    Session session{fakes.ports(), temp.path()};
    ScriptedClientListQuestions questions;
};

// The texts that begin a block at the list's first column, in page order.
Lines firstColumnTexts(const ListPages& pages, PrintBuffer& buffer)
{
    Lines texts;
    for (int page = 0; page < pages.pageCount(); ++page) {
        pages.fillPage(buffer, page);
        for (int slot = 0; slot < buffer.count; ++slot) {
            const auto index = static_cast<std::size_t>(slot);
            if (buffer.formats[index] == "5, 0, 50, 4, n, 000, A")
                texts.push_back(buffer.texts[index]);
        }
    }
    return texts;
}

TEST_F(ClientListsCommandsTest, EveryListOfAFullDataSetRunsOverFullPagesThatFitThePaper)
{
    session.index = testing::generateDataSet(session.folder, maxClients, 7);
    session.establishment.name.set("Whiskers Lodge");
    const std::vector<ListedClient> clients = listedCurrentClients(session.folder, session.index);
    ASSERT_EQ(clients.size(), std::size_t{maxClients});
    EXPECT_EQ(clients[1].code, session.index.entries[2].code.str());
    PrintBuffer buffer;
    for (ClientListChoice choice : clientListChoices) {
        const ListPages pages = clientListPages(session, choice);
        SCOPED_TRACE(std::string(clientListName(choice)));
        // Few generated clients are inactive.
        ASSERT_GT(pages.pageCount(), choice == ClientListChoice::Inactive ? 0 : 2);
        std::size_t nextBlock = 0;
        for (int page = 0; page < pages.pageCount(); ++page) {
            pages.fillPage(buffer, page);
            EXPECT_LE(buffer.count, printSlotCount) << "page " << page;
            EXPECT_LE(printedDepth(buffer), 10.5) << "page " << page;
            EXPECT_EQ(buffer.texts[3], "Page " + std::to_string(page + 1) + " of " +
                                           std::to_string(pages.pageCount()));
            // The page starts where the last ended, and its blocks alone fit
            // one page while one more would not.
            const auto [first, end] = pages.blocksOfPage(page);
            EXPECT_EQ(first, nextBlock);
            if (pages.blocks().empty())
                break;
            ASSERT_LT(first, end);
            nextBlock = end;
            if (end == pages.blocks().size())
                continue;
            std::vector<ListBlock> blocks(pages.blocks().begin() + first,
                                          pages.blocks().begin() + end);
            EXPECT_EQ(ListPages(pages.heading(), pages.columns(), blocks, "").pageCount(), 1);
            blocks.push_back(pages.blocks()[end]);
            EXPECT_EQ(ListPages(pages.heading(), pages.columns(), blocks, "").pageCount(), 2)
                << "page " << page << " had room for one more";
        }
        EXPECT_EQ(nextBlock, pages.blocks().size());
    }

    // Every client once, in index order, across the printed pages.
    Lines names;
    for (const ListedClient& client : clients)
        names.push_back(cutToWidth(ownerName(client.record), {4, 5}, 8 / 4.0 - 0.08));
    const ListPages people = clientListPages(session, ClientListChoice::People);
    EXPECT_EQ(firstColumnTexts(people, buffer), names);

    // The listing parts them by the inactive flag, each once.
    const std::size_t active = clientListPages(session, ClientListChoice::Active).blocks().size();
    const std::size_t inactive =
        clientListPages(session, ClientListChoice::Inactive).blocks().size();
    EXPECT_EQ(active + inactive, clients.size());
}

TEST_F(ClientListsCommandsTest, EachListPrintsItsPagesUnderItsTitleWithTheDialogOnce)
{
    session.index = testing::generateDataSet(session.folder, 40, 7);
    session.printDialog.modeInForce = printDialogEveryTime;
    questions.toPrint = {ClientListChoice::Cats, ClientListChoice::Inactive};
    listAllClients(session, questions);
    EXPECT_EQ(questions.shownFirst, ClientListChoice::People);
    ASSERT_EQ(questions.pagesShown.size(), clientListChoices.size());
    const int catPages = questions.pagesShown[1];
    ASSERT_GT(catPages, 1);
    Jobs expected{{"cat list", true}};
    expected.resize(static_cast<std::size_t>(catPages), {"cat list", false});
    expected.push_back({"Client Listing", true});
    expected.resize(expected.size() + static_cast<std::size_t>(questions.pagesShown[4]) - 1,
                    {"Client Listing", false});
    EXPECT_EQ(fakes.printer.jobs, expected);

    // A page that does not print stops the rest.
    fakes.printer.jobs.clear();
    fakes.printer.outcomes = {PrintOutcome::Printed, PrintOutcome::Cancelled};
    questions.chosen = ClientListChoice::Full;
    printClientLists(session, questions);
    EXPECT_EQ(fakes.printer.jobs, (Jobs{{"Full Client List", true}, {"Full Client List", false}}));

    fakes.printer.jobs.clear();
    questions.chosen.reset();
    printClientLists(session, questions);
    EXPECT_TRUE(fakes.printer.jobs.empty()) << "cancelled";

    questions.chosen = ClientListChoice::People;
    session.printDialog.modeInForce = printDialogNever;
    printClientLists(session, questions);
    EXPECT_EQ(fakes.printer.jobs.front(), (testing::FakePrinter::Job{"people list", false}));

    fakes.printer.jobs.clear();
    printCurrentRates(session);
    EXPECT_EQ(fakes.printer.jobs, (Jobs{{"Rates", false}}));
}

} // namespace
} // namespace purrlodge
