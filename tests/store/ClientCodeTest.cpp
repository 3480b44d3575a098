#include "store/ClientCode.h"

#include <gtest/gtest.h>
#include <set>
#include <string>

#include "store/RandomDraw.h"
#include "store/TextHelpers.h"
#include "support/FakePorts.h"

namespace purrlodge {
namespace {

using testing::FakeClock;
using testing::FakeRandom;

bool never(std::string_view)
{
    return false;
}

TEST(ClientCode, IsBuiltFromTheNames)
{
    FakeClock clock(1000);
    FakeRandom random({3});
    RandomDraw draw(random, clock);
    EXPECT_EQ(makeClientCode("Smith", "Anne", draw, never), "SmithAnn");
    EXPECT_EQ(makeClientCode("Lee", "Jo", draw, never), "LeeJo333");
    EXPECT_EQ(makeClientCode("Blenkinsop", "Al", draw, never), "BlenkAl3");
    EXPECT_EQ(makeClientCode("", "", draw, never), "33333333");
    EXPECT_EQ(makeClientCode("O/Ha*", "A:B", draw, never), "O_Ha_A_B")
        << "no name may leave the folder";
}

TEST(RandomDraw, SeedsWithTheTimeThenWithEachResult)
{
    FakeClock clock(123456);
    FakeRandom random({17, 5, 30});
    RandomDraw draw(random, clock);
    EXPECT_EQ(draw.upTo(9), 7);
    EXPECT_EQ(draw.upTo(9), 5);
    EXPECT_EQ(draw.upTo(25), 4);
    EXPECT_EQ(random.seeds, (std::vector<std::uint32_t>{123456, 7, 5}));
}

TEST(ClientCode, CollisionChangesOnlyTheLastTwoCharacters)
{
    FakeClock clock;
    // Eight digits, then the letters B,C (taken, ignoring case), then D,E.
    FakeRandom random({0, 0, 0, 0, 0, 0, 0, 0, 1, 2, 3, 4});
    RandomDraw draw(random, clock);
    const auto code = makeClientCode("Smith", "Anne", draw, [](std::string_view candidate) {
        return equalsIgnoringCase(candidate, "SMITHANN") ||
               equalsIgnoringCase(candidate, "smithaBC");
    });
    EXPECT_EQ(code, "SmithADE");
}

TEST(ClientCode, RepeatingDrawsFallBackToWalkingThePairs)
{
    FakeClock clock;
    FakeRandom random({0}); // every draw gives 0: the pair AA again and again
    RandomDraw draw(random, clock);
    std::set<std::string> taken{"SmithAnn", "SmithAAA", "SmithAAB"};
    const auto code = makeClientCode(
        "Smith", "Anne", draw, [&](std::string_view c) { return taken.count(std::string(c)) > 0; });
    EXPECT_EQ(code, "SmithAAC");

    int asked = 0;
    const auto none = makeClientCode("Smith", "Anne", draw, [&](std::string_view) {
        ++asked;
        return true;
    });
    EXPECT_EQ(none, "") << "every pair taken ends the search";
    EXPECT_LT(asked, 1000);
}

} // namespace
} // namespace purrlodge
