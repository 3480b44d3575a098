#include "store/ClientFiles.h"

#include <filesystem>
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
    ClientRecord clientNamed(const std::string& surname, const std::string& firstName)
    {
        ClientRecord client{};
        client.surname.set(surname);
        client.firstName.set(firstName);
        return client;
    }

    testing::TempFolder temp;
    testing::FakePorts fakes;
    DataFolder folder{temp.path(), fakes.ui};
    RandomDraw draw{fakes.random, fakes.clock};
    ClientIndex index{};
};

TEST_F(ClientFilesTest, NewClientIsCodedFiledAndIndexedInOrder)
{
    auto smith = clientNamed("Smith", "Anne");
    ASSERT_EQ(addNewClient(folder, index, smith, draw), AddClientResult::Added);
    auto adams = clientNamed("Adams", "Bob");
    ASSERT_EQ(addNewClient(folder, index, adams, draw), AddClientResult::Added);

    EXPECT_EQ(smith.code.str(), "SmithAnn");
    ClientIndex onDisc;
    ASSERT_TRUE(readIndex(folder, onDisc));
    ASSERT_EQ(onDisc.usedCount(), 2);
    EXPECT_EQ(onDisc.entries[1].key.str(), "Adams");
    EXPECT_EQ(onDisc.entries[2].code.str(), "SmithAnn");

    ClientRecord read;
    ASSERT_TRUE(readClientRecord(folder, "SmithAnn", read));
    EXPECT_EQ(read.code.str(), "SmithAnn");
    EXPECT_EQ(read.firstName.str(), "Anne");
}

TEST_F(ClientFilesTest, SecondClientOfTheSameNameGetsADifferentCode)
{
    // Each client draws eight digits; then the second one's collision draws H, I.
    fakes.random.values = {1, 1, 1, 1, 1, 1, 1, 1, 1, 1, 1, 1, 1, 1, 1, 1, 7, 8};
    auto first = clientNamed("Smith", "Anne");
    auto second = clientNamed("SMITH", "ANNE");
    addNewClient(folder, index, first, draw);
    addNewClient(folder, index, second, draw);
    EXPECT_EQ(second.code.str(), "SMITHAHI") << "codes differing only in case would share files";
}

TEST_F(ClientFilesTest, PastClientsKeepTheirCodes)
{
    ClientIndex past{};
    appendEntry(past, "Smith", "SmithAnn");
    sortAndWritePastIndex(folder, past);
    fakes.random.values = {0, 0, 0, 0, 0, 0, 0, 0, 25, 25};
    auto client = clientNamed("Smith", "Anne");
    addNewClient(folder, index, client, draw);
    EXPECT_EQ(client.code.str(), "SmithAZZ");
}

TEST_F(ClientFilesTest, AFullIndexTakesNoMoreClients)
{
    for (int i = 0; i < maxClients; ++i)
        appendEntry(index, "Someone", "CODE" + std::to_string(i));
    auto client = clientNamed("Late", "Larry");
    EXPECT_EQ(addNewClient(folder, index, client, draw), AddClientResult::IndexFull);
    EXPECT_FALSE(folder.exists("LateLarr.DAT"));
    EXPECT_FALSE(folder.exists("FIDEX.CTL"));
}

TEST_F(ClientFilesTest, EditedSurnameBecomesTheIndexKey)
{
    auto client = clientNamed("Smith", "Anne");
    addNewClient(folder, index, client, draw);
    client.surname.set("Smythe");
    ASSERT_TRUE(saveEditedClient(folder, index, client));
    ClientIndex onDisc;
    readIndex(folder, onDisc);
    EXPECT_EQ(onDisc.entries[1].key.str(), "Smythe");
    EXPECT_EQ(onDisc.entries[1].code.str(), "SmithAnn");
}

TEST_F(ClientFilesTest, ListLineNamesTheClientBeforeItsFirstTab)
{
    auto client = clientNamed("Smith", "Anne");
    addNewClient(folder, index, client, draw);
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
    ClientIndex read;
    EXPECT_TRUE(readPastIndex(folder, read));
    EXPECT_EQ(read.count.get(), 0);
}

} // namespace
} // namespace purrlodge
