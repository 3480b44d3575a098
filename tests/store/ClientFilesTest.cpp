#include "store/ClientFiles.h"

#include <gtest/gtest.h>

#include "store/DataFolder.h"
#include "store/IndexOperations.h"
#include "store/RandomDraw.h"
#include "support/FakePorts.h"
#include "support/TempFolder.h"

namespace purrlodge {
namespace {

class ClientFilesTest : public ::testing::Test {
protected:
    AddClientResult add(const std::string& surname, const std::string& firstName,
                        ClientRecord& client)
    {
        client = {};
        client.surname.set(surname);
        client.firstName.set(firstName);
        return addNewClient(folder, index, client, draw);
    }
    std::string codeOf(const std::string& surname, const std::string& firstName)
    {
        ClientRecord client;
        add(surname, firstName, client);
        return client.code.str();
    }

    testing::TempFolder temp;
    testing::FakePorts fakes;
    DataFolder folder{temp.path(), fakes.ui};
    RandomDraw draw{fakes.random, fakes.clock};
    ClientIndex index{};
};

TEST_F(ClientFilesTest, NewClientIsCodedFiledAndIndexedInOrderAndKeepsItsCode)
{
    ClientRecord smith, adams;
    ASSERT_EQ(add("Smith", "Anne", smith), AddClientResult::Added);
    ASSERT_EQ(add("Adams", "Bob", adams), AddClientResult::Added);
    ClientIndex onDisc;
    ASSERT_TRUE(readIndex(folder, onDisc));
    ASSERT_EQ(onDisc.usedCount(), 2);
    EXPECT_EQ(onDisc.entries[1].key.str(), "Adams");
    EXPECT_EQ(onDisc.entries[2].code.str(), "SmithAnn");
    ClientRecord read;
    ASSERT_TRUE(readClientRecord(folder, "SmithAnn", read));
    EXPECT_EQ(read.code.str() + "/" + read.firstName.str(), "SmithAnn/Anne");

    smith.surname.set("Smythe"); // an edited surname becomes the index key
    ASSERT_TRUE(saveEditedClient(folder, index, smith));
    readIndex(folder, onDisc);
    EXPECT_EQ(onDisc.entries[2].key.str() + "/" + onDisc.entries[2].code.str(), "Smythe/SmithAnn");
}

TEST_F(ClientFilesTest, CodesAreUniqueWithoutRegardToCaseAndAmongPastClients)
{
    // Each client draws eight digits; then a collision draws the last two letters.
    fakes.random.values = {1, 1, 1, 1, 1, 1, 1, 1, 1, 1, 1, 1, 1, 1, 1, 1, 7, 8};
    EXPECT_EQ(codeOf("Smith", "Anne"), "SmithAnn");
    EXPECT_EQ(codeOf("SMITH", "ANNE"), "SMITHAHI") << "codes differing only in case share files";

    ClientIndex past{};
    appendEntry(past, "Jones", "JonesBob");
    sortAndWritePastIndex(folder, past);
    fakes.random.values = {0, 0, 0, 0, 0, 0, 0, 0, 25, 25};
    EXPECT_EQ(codeOf("Jones", "Bob"), "JonesBZZ");
}

TEST_F(ClientFilesTest, AFullIndexTakesNoMoreClients)
{
    for (int i = 0; i < maxClients; ++i)
        appendEntry(index, "Someone", "CODE" + std::to_string(i));
    ClientRecord client;
    EXPECT_EQ(add("Late", "Larry", client), AddClientResult::IndexFull);
    EXPECT_FALSE(folder.exists("LateLarr.DAT") || folder.exists("FIDEX.CTL"));
}

TEST_F(ClientFilesTest, ListLineNamesTheClientBeforeItsFirstTab)
{
    codeOf("Smith", "Anne");
    EXPECT_EQ(codeOfListLine("smithann\tSmith Anne\tTom", index), "SmithAnn");
    EXPECT_EQ(codeOfListLine("SmithAnn", index), "SmithAnn") << "a line with no tab is the code";
    EXPECT_EQ(codeOfListLine("unknown\tx", index), "UNKNOWN");
    ClientRecord read;
    ASSERT_TRUE(readClientOfListLine(folder, index, "SMITHANN\tSmith", read));
    EXPECT_EQ(read.firstName.str(), "Anne");
}

TEST_F(ClientFilesTest, PastIndexWithCountMinusOneIsEmpty)
{
    ClientIndex past{};
    past.count.set(-1);
    folder.write(pastIndexFile, past);
    EXPECT_TRUE(readPastIndex(folder, past));
    EXPECT_EQ(past.count.get(), 0);
}

} // namespace
} // namespace purrlodge
