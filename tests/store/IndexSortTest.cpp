#include <gtest/gtest.h>
#include <string>
#include <vector>

#include "store/IndexOperations.h"
#include "store/WordSort.h"

namespace purrlodge {
namespace {

ClientIndex indexOf(const std::vector<std::string>& surnames)
{
    ClientIndex index{};
    for (std::size_t i = 0; i < surnames.size(); ++i)
        appendEntry(index, surnames[i], "C" + std::to_string(i));
    return index;
}

std::vector<std::string> keysOf(const ClientIndex& index)
{
    std::vector<std::string> keys;
    for (int i = 1; i <= index.usedCount(); ++i)
        keys.push_back(index.entries[i].key.str());
    return keys;
}

TEST(WordSort, OrdersSurnamesAsTheIndexAlwaysHas)
{
    auto index = indexOf({"Smithers", "O'Neil", "Smith", "de Vere", "McDonald", "Smith-Jones",
                          "Oakes", "Mcdonald", "smith", "10 Downing", "\xC9lan", "Elan"});
    sortIndexEntries(index);
    EXPECT_EQ(keysOf(index), (std::vector<std::string>{
                                 "10 Downing", "de Vere", "Elan", "\xC9lan", "Mcdonald", "McDonald",
                                 "Oakes", "O'Neil", "smith", "Smith", "Smithers", "Smith-Jones"}));
}

TEST(WordSort, IgnoredCharactersOnlyBreakTies)
{
    EXPECT_LT(compareWordSort("Coop", "Co-op"), 0);
    EXPECT_GT(compareWordSort("Co-op", "Coop"), 0);
    EXPECT_GT(compareWordSort("O'Brien", "Oakes"), 0)
        << "the apostrophe is ignored, not sorted first";
    EXPECT_EQ(compareWordSort("Smith", "Smith"), 0);
    EXPECT_LT(compareWordSort("", "A"), 0);
}

TEST(IndexSort, IsStableEmptiesEntryZeroAndClampsADamagedCount)
{
    ClientIndex index{};
    index.entries[0].key.set("left over");
    index.entries[0].code.set("OLDCODE1");
    for (const char* code : {"BrownTwo", "AdamsOne", "BrownOne"})
        appendEntry(index, std::string(code, 5), code);
    sortIndexEntries(index);
    EXPECT_EQ(index.entries[1].code.str(), "AdamsOne");
    EXPECT_EQ(index.entries[2].code.str(), "BrownTwo") << "equal keys keep their order";
    EXPECT_EQ(index.entries[3].code.str(), "BrownOne");
    EXPECT_TRUE(index.entries[0].key.isEmpty() && index.entries[0].code.isEmpty());

    for (int count : {0, 1}) {
        ClientIndex small{};
        small.entries[0].key.set("junk");
        if (count == 1)
            appendEntry(small, "Zed", "ZedAnn01");
        sortIndexEntries(small);
        EXPECT_TRUE(small.entries[0].key.isEmpty()) << count;
        EXPECT_EQ(small.usedCount(), count);
    }

    index.count.set(100000);
    sortIndexEntries(index); // must not run past the 600 entries
    EXPECT_EQ(index.usedCount(), maxClients);
    index.count.set(-5);
    EXPECT_EQ(index.usedCount(), 0);
}

TEST(IndexEntries, FindAppendAndRemove)
{
    auto index = indexOf({"Smith", "Jones", "Brown"});
    index.entries[1].code.set("SmithAnn");
    EXPECT_EQ(findCode(index, "SMITHANN"), 1);
    EXPECT_EQ(findCode(index, "smithann"), 1);
    EXPECT_EQ(findCode(index, "Nobody"), -1);

    removeEntry(index, 1);
    EXPECT_EQ(keysOf(index), (std::vector<std::string>{"Jones", "Brown"}));
    EXPECT_TRUE(index.entries[3].code.isEmpty());

    ClientIndex full{};
    for (int i = 0; i < maxClients; ++i)
        ASSERT_TRUE(appendEntry(full, "Name", "Code"));
    EXPECT_FALSE(appendEntry(full, "One", "TooMany"));
    EXPECT_EQ(full.usedCount(), 599);
}

} // namespace
} // namespace purrlodge
