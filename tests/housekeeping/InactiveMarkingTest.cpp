#include "housekeeping/InactiveMarking.h"

#include <filesystem>
#include <gtest/gtest.h>

#include "store/ClientFiles.h"
#include "store/DataFolder.h"
#include "store/Dates.h"
#include "store/IndexOperations.h"
#include "support/Bytes.h"
#include "support/FakePorts.h"
#include "support/TempFolder.h"

namespace purrlodge {
namespace {

// Four clients last seen around the cut-off of 1 June 2025; the one seen on
// the day after was marked inactive by an earlier run.
class InactiveMarkingTest : public ::testing::Test {
protected:
    void SetUp() override
    {
        addClient("BEFORE", "31/05/25", 0);
        addClient("ONTHEDAY", "01/06/25", 0);
        addClient("AFTER", "02/06/25", 1);
        addClient("NEVER", "", 0);
    }
    void addClient(const char* code, const char* lastIn, int inactive)
    {
        ClientRecord client{};
        client.surname.set(code);
        client.catName[0].set("Tom");
        client.lastInDate.set(lastIn);
        client.inactive.set(inactive);
        ASSERT_TRUE(writeClientRecord(folder, code, client));
        appendEntry(index, code, code);
    }
    [[nodiscard]] ClientRecord recordOf(const char* code) const
    {
        ClientRecord client;
        readClientRecord(folder, code, client);
        return client;
    }

    testing::TempFolder temp;
    testing::FakeUi ui;
    DataFolder folder{temp.path(), ui};
    ClientIndex index{};
    const std::int64_t cutOff = dateToNumber("01/06/25");
};

TEST_F(InactiveMarkingTest, OnlyClientsLastSeenBeforeTheDayAreInactiveAndEveryOtherIsActiveAgain)
{
    ClientRecord before = recordOf("BEFORE");
    const InactiveMarking result = markInactive(folder, index, cutOff);
    EXPECT_EQ(inactiveMarkingText(result), "4 Clients examined\n2 Client Marked as Inactive");
    EXPECT_TRUE(result.complete);
    EXPECT_EQ(recordOf("BEFORE").inactive.get(), 1);
    EXPECT_EQ(recordOf("ONTHEDAY").inactive.get(), 0);
    EXPECT_EQ(recordOf("AFTER").inactive.get(), 0);
    EXPECT_EQ(recordOf("NEVER").inactive.get(), 1) << "no visit recorded";
    before.inactive.set(1);
    EXPECT_EQ(testing::bytesOf(recordOf("BEFORE")), testing::bytesOf(before))
        << "nothing but the flag changes";
    EXPECT_TRUE(ui.messages.empty());
}

TEST_F(InactiveMarkingTest, ARecordIsSavedUnderTheCodeTheIndexNamesAndUnreadableOnesAreLeftAlone)
{
    ClientRecord before = recordOf("BEFORE");
    before.code.set("ONTHEDAY"); // a record that names another client inside it
    ASSERT_TRUE(writeClientRecord(folder, "BEFORE", before));
    appendEntry(index, "Gone", "GONE"); // no file

    const InactiveMarking result = markInactive(folder, index, cutOff);
    EXPECT_EQ(result.examined, 4);
    EXPECT_EQ(recordOf("BEFORE").inactive.get(), 1);
    EXPECT_EQ(recordOf("ONTHEDAY").inactive.get(), 0);
    EXPECT_FALSE(folder.exists("GONE.DAT"));
}

TEST_F(InactiveMarkingTest, AFailedWriteIsToldAndStopsTheRunWithTheCountsSoFar)
{
    const auto file = temp.root() / "ONTHEDAY.DAT";
    std::filesystem::permissions(file, std::filesystem::perms::owner_read);
    const InactiveMarking result = markInactive(folder, index, cutOff);
    std::filesystem::permissions(file, std::filesystem::perms::owner_all);

    EXPECT_FALSE(result.complete);
    EXPECT_EQ(inactiveMarkingText(result), "1 Clients examined\n1 Client Marked as Inactive");
    EXPECT_EQ(ui.titles(), std::vector<std::string>{"File Error"});
    EXPECT_EQ(recordOf("AFTER").inactive.get(), 1) << "not reached";
}

TEST(CutOffDay, TheDateTypedIsReadToItsTwentyThirdCharacter)
{
    EXPECT_EQ(cutOffDay("01/06/" + std::string(15, ' ') + "25"), dateToNumber("01/06/25"));
    EXPECT_EQ(cutOffDay("01/06/" + std::string(16, ' ') + "25"), dateToNumber("01/06/02"));
}

} // namespace
} // namespace purrlodge
