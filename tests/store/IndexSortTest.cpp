#include <gtest/gtest.h>
#include <string>
#include <vector>

#include "store/IndexOperations.h"
#include "store/WordSort.h"

namespace purrlodge {
namespace {

TEST(WordSort, OrdersSurnamesAsTheIndexAlwaysHas)
{
    const std::vector<std::string> ordered = {"10 Downing", "de Vere",  "Elan",     "\xC9lan",
                                              "Mcdonald",   "McDonald", "Oakes",    "O'Neil",
                                              "smith",      "Smith",    "Smithers", "Smith-Jones"};
    // Symbols before digits before letters, where byte order would often say
    // otherwise; ignored characters only break ties.
    std::vector<std::pair<std::string, std::string>> pairs = {
        {"\xF7", "0"}, {":", "0"},    {"\xBF", "0"}, {"9", "a"},       {"9", "A"},
        {"9", "\xC0"}, {"9", "\x8A"}, {"[", "a"},    {"Coop", "Co-op"}};
    for (std::size_t i = 0; i + 1 < ordered.size(); ++i)
        pairs.emplace_back(ordered[i], ordered[i + 1]);
    for (const auto& [first, second] : pairs) {
        EXPECT_LT(compareWordSort(first, second), 0) << first << " " << second;
        EXPECT_GT(compareWordSort(second, first), 0) << first << " " << second;
    }
    EXPECT_EQ(compareWordSort("Smith", "Smith"), 0);
    // The index sort needs every pass to turn the list round.
    ClientIndex index{};
    for (auto name = ordered.rbegin(); name != ordered.rend(); ++name)
        appendEntry(index, *name, "C");
    sortIndexEntries(index);
    for (std::size_t i = 0; i < ordered.size(); ++i)
        EXPECT_EQ(index.entries[i + 1].key.str(), ordered[i]);
}

TEST(IndexEntries, SortIsStableAndEmptiesEntryZeroFindRemoveAndClamp)
{
    ClientIndex index{};
    index.entries[0].key.set("left over");
    sortIndexEntries(index); // with no entries at all
    EXPECT_TRUE(index.entries[0].key.isEmpty());
    index.entries[0].code.set("OLDCODE1");
    for (const char* code : {"BrownTwo", "AdamsOne", "BrownOne"})
        appendEntry(index, std::string(code, 5), code);
    sortIndexEntries(index);
    EXPECT_EQ(index.entries[1].code.str() + index.entries[2].code.str() +
                  index.entries[3].code.str(),
              "AdamsOneBrownTwoBrownOne")
        << "equal keys keep their order";
    EXPECT_TRUE(index.entries[0].code.isEmpty());
    EXPECT_EQ(findCode(index, "brownONE"), 3);
    EXPECT_EQ(findCode(index, "BrownOn"), -1);
    removeEntry(index, 1);
    EXPECT_EQ(index.usedCount(), 2);
    EXPECT_EQ(index.entries[1].code.str() + index.entries[2].code.str(), "BrownTwoBrownOne");
    EXPECT_TRUE(index.entries[3].code.isEmpty());

    index.count.set(100000);
    sortIndexEntries(index); // must not run past the 600 entries
    EXPECT_EQ(index.usedCount(), maxClients);
    index.count.set(-5);
    EXPECT_EQ(index.usedCount(), 0);
}

} // namespace
} // namespace purrlodge
