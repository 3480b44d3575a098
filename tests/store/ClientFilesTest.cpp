#include "store/ClientFiles.h"

#include <filesystem>
#include <gtest/gtest.h>
#include <map>

#include "store/DataFolder.h"
#include "store/IndexOperations.h"
#include "store/RandomDraw.h"
#include "support/Bytes.h"
#include "support/FakePorts.h"
#include "support/TempFolder.h"

namespace purrlodge {
namespace {

using testing::bytesOf;

class ClientFilesTest : public ::testing::Test {
protected:
    // Registers a client of those names and answers its code; a client not
    // added is left as it was, and so is the index.
    std::string add(const std::string& surname, const std::string& firstName,
                    AddClientResult expected = AddClientResult::Added)
    {
        ClientRecord client{};
        client.surname.set(surname);
        client.firstName.set(firstName);
        const std::string before = bytesOf(client) + bytesOf(index);
        EXPECT_EQ(addNewClient(folder, index, client, draw), expected);
        EXPECT_TRUE(expected == AddClientResult::Added ||
                    bytesOf(client) + bytesOf(index) == before);
        return client.code.str();
    }
    // Every entry of the folder with its contents ("<dir>" for a folder).
    std::map<std::string, std::string> folderContents() const
    {
        std::map<std::string, std::string> contents;
        for (const auto& entry : std::filesystem::directory_iterator(temp.root()))
            contents[entry.path().filename().string()] =
                entry.is_directory() ? "<dir>" : testing::fileBytes(entry.path());
        return contents;
    }

    testing::TempFolder temp;
    testing::FakePorts fakes;
    DataFolder folder{temp.path(), fakes.ui};
    RandomDraw draw{fakes.random, fakes.clock};
    ClientIndex index{};
};

TEST_F(ClientFilesTest, NewClientIsCodedFiledAndIndexedInOrder)
{
    EXPECT_EQ(add("Smith", "Anne"), "SmithAnn");
    EXPECT_EQ(add("Adams", "Bob"), "AdamsBob");
    ClientIndex onDisc;
    ASSERT_TRUE(readIndex(folder, onDisc));
    EXPECT_EQ(bytesOf(onDisc), bytesOf(index));
    EXPECT_EQ(index.usedCount(), 2);
    EXPECT_EQ(index.entries[1].key.str() + index.entries[2].code.str(), "AdamsSmithAnn");
    ClientRecord read;
    ASSERT_TRUE(readClientOfListLine(folder, index, "SMITHANN\tSmith", read));
    EXPECT_EQ(read.code.str() + read.surname.str() + read.firstName.str(), "SmithAnnSmithAnne");
    EXPECT_EQ(codeOfListLine("smithann\tSmith Anne\tTom", index), "SmithAnn");
    EXPECT_EQ(codeOfListLine("SmithAnn", index), "SmithAnn") << "a line with no tab is the code";
    EXPECT_EQ(codeOfListLine("unknown\tx", index), "UNKNOWN");
}

TEST_F(ClientFilesTest, CodesAreUniqueWithoutRegardToCaseAndAmongPastClients)
{
    // Each client draws eight digits; then a collision draws the last two letters.
    fakes.random.values = {1, 1, 1, 1, 1, 1, 1, 1, 1, 1, 1, 1, 1, 1, 1, 1, 7, 8};
    EXPECT_EQ(add("Smith", "Anne"), "SmithAnn");
    EXPECT_EQ(add("SMITH", "ANNE"), "SMITHAHI") << "codes differing only in case share files";

    ClientIndex past{};
    past.count.set(-1); // read as no past clients
    ASSERT_TRUE(folder.write(pastIndexFile, past));
    ASSERT_TRUE(readPastIndex(folder, past));
    EXPECT_EQ(past.count.get(), 0);
    appendEntry(past, "Jones", "JonesBob");
    ASSERT_TRUE(sortAndWritePastIndex(folder, past));
    fakes.random.values = {0, 0, 0, 0, 0, 0, 0, 0, 1, 2};
    EXPECT_EQ(add("Jones", "Bob"), "JonesBBC");
}

TEST_F(ClientFilesTest, AFailedWriteLeavesIndexClientAndFolderAsTheyWere)
{
    add("Adams", "Bob");
    for (const char* blocked : {"FIDEX.CTL", "SmithAnn.DAT"}) {
        SCOPED_TRACE(blocked);
        // A folder in the file's place makes its write fail.
        std::filesystem::remove(temp.root() / blocked);
        std::filesystem::create_directory(temp.root() / blocked);
        const auto filesBefore = folderContents();
        add("Smith", "Anne", AddClientResult::WriteFailed);
        EXPECT_EQ(folderContents(), filesBefore);
    }
    EXPECT_EQ(fakes.ui.titles(), std::vector<std::string>(2, "File Error"));
}

TEST_F(ClientFilesTest, AFullIndexTakesNoMoreClients)
{
    for (int i = 1; i < maxClients; ++i)
        appendEntry(index, "Someone", "CODE" + std::to_string(i));
    EXPECT_EQ(add("Last", "Larry"), "LastLarr");
    add("Late", "Larry", AddClientResult::IndexFull);
    EXPECT_FALSE(folder.exists("LateLarr.DAT"));
    EXPECT_FALSE(appendEntry(index, "Late", "LateLarr"));
    EXPECT_EQ(index.usedCount(), maxClients);
}

} // namespace
} // namespace purrlodge
