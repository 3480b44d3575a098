#include "clients/LeavingCat.h"

#include <gtest/gtest.h>

#include "store/DataFolder.h"
#include "support/FakePorts.h"
#include "support/TempFolder.h"

namespace purrlodge {
namespace {

TEST(LeavingCat, TheEleventhCatPushesOutTheOldestAndTheHeaderIsKept)
{
    testing::TempFolder temp;
    testing::FakePorts fakes;
    DataFolder folder{temp.path(), fakes.ui};
    const auto cat = [](int n) {
        const DepartingCat departing{"Cat" + std::to_string(n), "", "", 1, 1999};
        return otherCatRecordOf(departing, {LeavingReason::Other, std::string(100, 'n')},
                                CivilTime{2009, 3, 7}, 2009);
    };

    ASSERT_TRUE(appendOtherCat(folder, "SmithAnn", cat(1)));
    OtherCatsFile file;
    folder.read("SmithAnn.XC2", file);
    EXPECT_EQ(file.cats[8].sex.get(), -1) << "a missing file starts as ten cleared records";
    EXPECT_EQ(file.cats[9].notes.str(), std::string(79, 'n'));
    EXPECT_EQ(file.cats[9].reason.str(), "Unknown reason");

    file.header.set(77);
    ASSERT_TRUE(folder.write("SmithAnn.XC2", file));
    for (int n = 2; n <= 11; ++n)
        ASSERT_TRUE(appendOtherCat(folder, "SmithAnn", cat(n)));
    folder.read("SmithAnn.XC2", file);
    EXPECT_EQ(file.header.get(), 77);
    for (int at = 0; at < otherCatsKept; ++at)
        EXPECT_EQ(file.cats[at].name.str(), "Cat" + std::to_string(at + 2)) << at;
}

} // namespace
} // namespace purrlodge
