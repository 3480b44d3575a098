#include "store/CatSlots.h"

#include <gtest/gtest.h>
#include <string>

#include "support/Bytes.h"

namespace purrlodge {
namespace {

// Fills every field of a cat slot with values that tell the cat apart.
void giveCat(ClientRecord& client, int slot, int cat)
{
    const std::string name = "Cat" + std::to_string(cat);
    client.catName[slot].set(name);
    client.catBreed[slot].set(name);
    client.catColour[slot].set(name);
    client.catExtraCode[slot].set(name);
    for (auto* number :
         {&client.catBirthYear[slot], &client.catSex[slot], &client.catMicrochip[slot],
          &client.catLastVaccination[slot], &client.catInsurance[slot]})
        number->set(cat);
}

TEST(CompactCats, ClosesGapsMovingEveryFieldAndLeavesTheFoodsWithTheirSlots)
{
    ClientRecord client{};
    client.favouriteFoods[3][0].set("Tuna"); // the slot of a cat that moves
    client.forbiddenFoods[5][2].set("Milk");
    ClientRecord expected = client;
    giveCat(client, 0, 1);
    client.catName[1].set("--"); // no letter or digit: an empty slot
    giveCat(client, 3, 2);
    giveCat(client, 5, 3);
    for (int cat = 1; cat <= 3; ++cat)
        giveCat(expected, cat - 1, cat);
    compactCats(client);
    EXPECT_EQ(testing::bytesOf(client), testing::bytesOf(expected));
}

} // namespace
} // namespace purrlodge
