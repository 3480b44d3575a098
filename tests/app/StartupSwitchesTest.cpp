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

TEST(StartupSwitchesTest, OneArgumentMaySetAnySwitchOfTwoOnlyTheSecondAndNeverTest)
{
    const StartupSwitches none{}, fdc{true, false, false}, fec{false, true, false};
    EXPECT_EQ(parse({"-fdc"}), fdc);
    EXPECT_EQ(parse({"-fec"}), fec);
    EXPECT_EQ(parse({"-test"}), (StartupSwitches{false, false, true}));
    EXPECT_EQ(parse({"-FDC"}), none);
    EXPECT_EQ(parse({"-fdc "}), none);
    EXPECT_EQ(parse({"x", "-fdc"}), fdc);
    EXPECT_EQ(parse({"-fdc", "x"}), none);
    EXPECT_EQ(parse({"x", "-test"}), none);
    EXPECT_EQ(parse({}), none);
    EXPECT_EQ(parse({"x", "y", "-fdc"}), none) << "any other count is ignored";
}

} // namespace
} // namespace purrlodge
