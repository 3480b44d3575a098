#include "clients/LeavingCat.h"

#include <filesystem>
#include <gtest/gtest.h>

#include "store/DataFolder.h"
#include "support/FakePorts.h"
#include "support/TempFolder.h"

namespace purrlodge {
namespace {

TEST(LeavingCat, RecordTakesTheCatItsReasonCutNotesAndADatedHistory)
{
    const DepartingCat cat{"Tibbles", "Persian", "Grey", 4, 1999};
    const OtherCatRecord record = otherCatRecordOf(
        cat, {LeavingReason::Lost, std::string(100, 'n')}, CivilTime{2009, 3, 7}, 2009);
    EXPECT_EQ(record.notes.str(), std::string(79, 'n'));
    EXPECT_EQ(record.history.str(), "Born 1999,   Departed 07/03/09,   age 10");
    EXPECT_EQ(record.reason.str(), "Lost");

    EXPECT_EQ(leavingReasonText(LeavingReason::Death), "");
    EXPECT_EQ(leavingReasonText(LeavingReason::NotGiven), "Unknown reason");
}

TEST(LeavingCat, TheEleventhCatPushesOutTheOldestAndTheHeaderIsKept)
{
    testing::TempFolder temp;
    testing::FakePorts fakes;
    DataFolder folder{temp.path(), fakes.ui};
    const auto cat = [](int n) {
        const DepartingCat departing{"Cat" + std::to_string(n), "", "", 1, 2001};
        return otherCatRecordOf(departing, {}, CivilTime{2009, 6, 15}, 2009);
    };

    ASSERT_TRUE(appendOtherCat(folder, "SmithAnn", cat(1)));
    EXPECT_EQ(std::filesystem::file_size(temp.root() / "SmithAnn.XC2"), 3774u);
    OtherCatsFile file;
    folder.read("SmithAnn.XC2", file);
    EXPECT_EQ(file.cats[8].sex.get(), -1) << "a missing file starts as ten cleared records";
    EXPECT_TRUE(file.cats[8].name.isEmpty());
    EXPECT_EQ(file.cats[9].name.str(), "Cat1");

    file.header.set(77);
    folder.write("SmithAnn.XC2", file);
    for (int n = 2; n <= 11; ++n)
        appendOtherCat(folder, "SmithAnn", cat(n));
    folder.read("SmithAnn.XC2", file);
    EXPECT_EQ(file.header.get(), 77);
    for (int at = 0; at < otherCatsKept; ++at)
        EXPECT_EQ(file.cats[at].name.str(), "Cat" + std::to_string(at + 2)) << at;
}

} // namespace
} // namespace purrlodge
