#include "app/PictureRotation.h"

#include <climits>
#include <gtest/gtest.h>

#include "support/FakePorts.h"

namespace purrlodge {
namespace {

TEST(PictureRotationTest, ChangesOnEveryThirdDayOrAfterMoreThanTwelveDaysAndWraps)
{
    EXPECT_EQ(advancedPictureIndex(4, 5, 9), 5);
    EXPECT_EQ(advancedPictureIndex(4, 5, 10), std::nullopt);
    EXPECT_EQ(advancedPictureIndex(4, 5, 8), std::nullopt);
    EXPECT_EQ(advancedPictureIndex(4, 4, 17), 5); // 13 days on
    EXPECT_EQ(advancedPictureIndex(4, 4, 16), std::nullopt);
    EXPECT_EQ(advancedPictureIndex(4, 9, 9), std::nullopt) << "at most once a day";
    EXPECT_EQ(advancedPictureIndex(20, 5, 9), 0);
    EXPECT_EQ(advancedPictureIndex(4, INT_MAX, 10), std::nullopt) << "any stored day";
    EXPECT_EQ(advancedPictureIndex(4, INT_MIN, 10), 5);

    testing::FakeProfile profile;
    profile.values["picdets"] = "20 $ 5";
    EXPECT_EQ(rotatePicture(profile, 9), 0);
    EXPECT_EQ(profile.writes, (decltype(profile.writes){{"PicDets", "0 $ 9"}}));
    EXPECT_EQ(rotatePicture(profile, 9), 0);
    EXPECT_EQ(profile.writes.size(), 1U);
    profile.values["picdets"] = "57 $ 9"; // damaged
    EXPECT_EQ(rotatePicture(profile, 9), 0);
}

} // namespace
} // namespace purrlodge
