#include "housekeeping/NameCounts.h"

#include <gtest/gtest.h>

#include "store/ClientFiles.h"
#include "store/DataFolder.h"
#include "store/IndexOperations.h"
#include "support/FakePorts.h"
#include "support/TempFolder.h"

namespace purrlodge {
namespace {

using Lines = std::vector<std::string>;

TEST(NameCountTable, SortsByCountWithEqualCountsInTheOrderFirstMet)
{
    NameCountTable table;
    for (const char* name : {"Bo", "Al", "Al", "Bo", "Cy", "Cy", "Cy", "Di", "al"})
        table.add(name);
    table.sortByCount();
    EXPECT_EQ(table.entries(),
              (std::vector<PopListName>{{"Cy", 3}, {"Bo", 2}, {"Al", 2}, {"Di", 1}, {"al", 1}}));
    EXPECT_EQ(table.moreThanOnce(), 3);
    EXPECT_EQ(nameListLines(table, NameList::Popular),
              (Lines{"\tCy\t3", "\tBo\t2", "\tAl\t2", " ", "3 Unique Names"}));
    EXPECT_EQ(nameListLines(table, NameList::Unique),
              (Lines{"\tDi\t1", "\tal\t1", " ", "2 Unique Names"}));
    EXPECT_EQ(nameListFileText(nameListLines(table, NameList::Unique)),
              "Di\t1\nal\t1\n \n2 Unique Names\n");
    EXPECT_EQ(popListNames(table), (std::vector<PopListName>{{"Cy", 3}, {"Bo", 2}, {"Al", 2}}));
}

TEST(NameCountTable, ManyEqualCountsStayInTheOrderFirstMet)
{
    NameCountTable table;
    std::vector<PopListName> expected{{"Zed", 2}};
    for (int i = 0; i < 50; ++i) {
        table.add("N" + std::to_string(49 - i));
        expected.push_back({"N" + std::to_string(49 - i), 1});
    }
    table.add("Zed");
    table.add("Zed");
    table.sortByCount();
    EXPECT_EQ(table.entries(), expected);
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

TEST(NameCountTable, WithNoNameTwiceThePopularListIsEmptyAndNothingPrints)
{
    NameCountTable table;
    table.add("Tom");
    table.add("Kit");
    table.sortByCount();
    EXPECT_EQ(nameListLines(table, NameList::Popular), (Lines{" ", "0 Unique Names"}));
    EXPECT_TRUE(popListNames(table).empty());
}

TEST(TallyCatNames, CountsTheNamedCatsOfEveryCurrentClient)
{
    testing::TempFolder temp;
    testing::FakeUi ui;
    const DataFolder folder(temp.path(), ui);
    ClientIndex index{};
    const std::vector<Lines> cats{{"Tom", "", "Kit", "  "}, {"Kit", "Tom", "Sam"}, {"-", "Kit"}};
    for (std::size_t i = 0; i < cats.size(); ++i) {
        ClientRecord client{};
        for (std::size_t slot = 0; slot < cats[i].size(); ++slot)
            client.catName[slot].set(cats[i][slot]);
        const std::string code = "CLIENT" + std::to_string(i);
        ASSERT_TRUE(writeClientRecord(folder, code, client));
        appendEntry(index, code, code);
    }
    EXPECT_EQ(tallyCatNames(folder, index).entries(),
              (std::vector<PopListName>{{"Kit", 3}, {"Tom", 2}, {"Sam", 1}}));
}

} // namespace
} // namespace purrlodge
