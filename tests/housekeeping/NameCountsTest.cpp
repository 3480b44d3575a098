#include "housekeeping/NameCounts.h"

#include <gtest/gtest.h>

namespace purrlodge {
namespace {

TEST(NameCountTable, SortsByCountWithEqualCountsInTheOrderFirstMet)
{
    NameCountTable table;
    std::vector<PopListName> expected{{"Cy", 3}, {"Bo", 2}, {"Al", 2}};
    for (const char* name : {"Bo", "Al", "Al", "Bo", "Cy", "Cy", "Cy"})
        table.add(name);
    // Enough names of one count that a sort which does not keep order shows it.
    for (int i = 50; i > 0; --i) {
        table.add("N" + std::to_string(i));
        expected.push_back({"N" + std::to_string(i), 1});
    }
    table.add("al");
    expected.push_back({"al", 1});
    table.sortByCount();
    EXPECT_EQ(table.entries(), expected);
    EXPECT_EQ(table.moreThanOnce(), 3);
}

TEST(NameCountTable, HoldsSixHundredNamesAndCountsNoNewOneAfter)
{
    NameCountTable table;
    for (int i = 0; i < 600; ++i)
        ASSERT_TRUE(table.add("Cat" + std::to_string(i)));
    EXPECT_EQ(table.rejected(), 0);
    EXPECT_FALSE(table.add("Newcomer"));
    EXPECT_TRUE(table.add("Cat599")) << "a name already held is still counted";
    EXPECT_EQ(table.entries().size(), 600u);
    EXPECT_EQ(table.rejected(), 1);
    EXPECT_EQ(table.entries().back(), (PopListName{"Cat599", 2}));
}

} // namespace
} // namespace purrlodge
