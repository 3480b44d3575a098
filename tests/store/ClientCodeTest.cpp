#include "store/ClientCode.h"

#include <gtest/gtest.h>
#include <set>
#include <string>

#include "store/RandomDraw.h"
#include "support/FakePorts.h"

namespace purrlodge {
namespace {

TEST(RandomDraw, SeedsWithTheTimeThenWithEachResultAndCoversBothEnds)
{
    testing::FakeClock clock(123456);
    testing::FakeRandom random({17, 0, 9, 10, 25, 32767});
    RandomDraw draw(random, clock);
    std::vector<int> drawn;
    for (int n : {9, 9, 9, 9, 25, 25})
        drawn.push_back(draw.upTo(n));
    EXPECT_EQ(drawn, (std::vector<int>{7, 0, 9, 0, 25, 7})) << "n itself can be drawn";
    EXPECT_EQ(random.seeds, (std::vector<std::uint32_t>{123456, 7, 0, 9, 0, 25}));
}

class ClientCodeTest : public ::testing::Test {
protected:
    std::string make(std::string_view surname, std::string_view firstName,
                     const std::set<std::string>& taken = {})
    {
        return makeClientCode(surname, firstName, draw, [&](std::string_view code) {
            return taken.count(std::string(code)) > 0;
        });
    }

    testing::FakeClock clock;
    testing::FakeRandom random{{3}};
    RandomDraw draw{random, clock};
};

TEST_F(ClientCodeTest, IsBuiltFromTheNamesAndDrawsReachBothEndsOfTheirRanges)
{
    EXPECT_EQ(make("Smith", "Anne"), "SmithAnn");
    EXPECT_EQ(make("Blenkinsop", "Al"), "BlenkAl3");
    EXPECT_EQ(make("", ""), "33333333");
    EXPECT_EQ(make("O/Ha*", "A:B"), "O_Ha_A_B") << "no name may leave the folder";
    // Digits 0 and 9 in turn; then the letters Z and A (taken too), then A and Z.
    random.values = {0, 9, 0, 9, 0, 9, 0, 9, 25, 0, 0, 25};
    EXPECT_EQ(make("Lee", "Jo", {"LeeJo090", "LeeJo0ZA"}), "LeeJo0AZ");
}

TEST_F(ClientCodeTest, RepeatingDrawsFallBackToWalkingThePairs)
{
    random.values = {0}; // every draw gives 0: the pair AA again and again
    EXPECT_EQ(make("Smith", "Anne", {"SmithAnn", "SmithAAA", "SmithAAB"}), "SmithAAC");
    std::set<std::string> all{"SmithAnn"};
    for (char a = 'A'; a <= 'Z'; ++a)
        for (char b = 'A'; b <= 'Z'; ++b)
            all.insert(std::string("Smith") + 'A' + a + b);
    EXPECT_EQ(make("Smith", "Anne", all), "") << "every pair taken ends the search";
}

} // namespace
} // namespace purrlodge
