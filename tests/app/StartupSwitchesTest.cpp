#include "app/StartupSwitches.h"

#include <gtest/gtest.h>
#include <vector>

namespace purrlodge {
namespace {

StartupSwitches parse(std::vector<const char*> arguments)
{
    arguments.insert(arguments.begin(), "purrlodge");
    const int count = static_cast<int>(arguments.size());
    arguments.push_back(nullptr);
    return parseStartupSwitches(count, arguments.data());
}

TEST(StartupSwitchesTest, OneArgumentMaySetAnySwitch)
{
    EXPECT_EQ(parse({"-fdc"}), (StartupSwitches{true, false, false}));
    EXPECT_EQ(parse({"-fec"}), (StartupSwitches{false, true, false}));
    EXPECT_EQ(parse({"-test"}), (StartupSwitches{false, false, true}));
    EXPECT_EQ(parse({"-FDC"}), StartupSwitches{});
    EXPECT_EQ(parse({"-fdc "}), StartupSwitches{});
}

TEST(StartupSwitchesTest, OfTwoArgumentsOnlyTheSecondCountsAndNeverForTest)
{
    EXPECT_EQ(parse({"x", "-fdc"}), (StartupSwitches{true, false, false}));
    EXPECT_EQ(parse({"-fdc", "-fec"}), (StartupSwitches{false, true, false}));
    EXPECT_EQ(parse({"-fdc", "x"}), StartupSwitches{});
    EXPECT_EQ(parse({"x", "-test"}), StartupSwitches{});
}

TEST(StartupSwitchesTest, AnyOtherCountIsIgnored)
{
    EXPECT_EQ(parse({}), StartupSwitches{});
    EXPECT_EQ(parse({"x", "y", "-fdc"}), StartupSwitches{});
}

} // namespace
} // namespace purrlodge
