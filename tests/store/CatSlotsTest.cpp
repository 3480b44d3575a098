#include "store/CatSlots.h"

#include <gtest/gtest.h>

namespace purrlodge {
namespace {

ClientRecord withCats(const char* const (&names)[6])
{
    ClientRecord client{};
    for (int s = 0; s < 6; ++s) {
        client.catName[s].set(names[s]);
        client.catBreed[s].set(std::string("breed ") + names[s]);
        client.catBirthYear[s].set(2000 + s);
        client.catSex[s].set(s % 5);
        client.favouriteFoods[s][0].set("food " + std::to_string(s));
        client.forbiddenFoods[s][2].set("never " + std::to_string(s));
    }
    return client;
}

TEST(CompactCats, ClosesGapsAndLeavesFoodsWithTheirSlots)
{
    auto client = withCats({"A", "", "B", "", "", "C"});
    compactCats(client);
    const char* expected[] = {"A", "B", "C", "", "", ""};
    for (int s = 0; s < 6; ++s) {
        EXPECT_EQ(client.catName[s].str(), expected[s]) << s;
        EXPECT_EQ(client.favouriteFoods[s][0].str(), "food " + std::to_string(s)) << s;
        EXPECT_EQ(client.forbiddenFoods[s][2].str(), "never " + std::to_string(s)) << s;
    }
    EXPECT_EQ(client.catBreed[1].str(), "breed B");
    EXPECT_EQ(client.catBirthYear[2].get(), 2005);
    EXPECT_EQ(client.catSex[2].get(), 0);
    EXPECT_EQ(client.catBirthYear[5].get(), 0) << "a vacated slot is emptied";
    EXPECT_TRUE(client.catBreed[5].isEmpty());
}

TEST(CompactCats, FullAndNameWithoutLetterSlots)
{
    auto full = withCats({"A", "B", "C", "D", "E", "F"});
    compactCats(full);
    EXPECT_EQ(full.catName[5].str(), "F") << "six cats stay six cats";

    auto dashes = withCats({"--", "Tom", "", "", "", ""});
    compactCats(dashes);
    EXPECT_EQ(dashes.catName[0].str(), "Tom") << "a name with no letter or digit is an empty slot";
    EXPECT_TRUE(dashes.catName[1].isEmpty());
}

} // namespace
} // namespace purrlodge
