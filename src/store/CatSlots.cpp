#include "store/CatSlots.h"

#include <cstring>

#include "store/TextHelpers.h"

namespace purrlodge {

namespace {

void moveCat(ClientRecord& client, int to, int from)
{
    client.catName[to] = client.catName[from];
    client.catBreed[to] = client.catBreed[from];
    client.catColour[to] = client.catColour[from];
    client.catExtraCode[to] = client.catExtraCode[from];
    client.catBirthYear[to] = client.catBirthYear[from];
    client.catSex[to] = client.catSex[from];
    client.catMicrochip[to] = client.catMicrochip[from];
    client.catLastVaccination[to] = client.catLastVaccination[from];
    client.catInsurance[to] = client.catInsurance[from];
}

void emptyCat(ClientRecord& client, int slot)
{
    client.catName[slot].clear();
    client.catBreed[slot].clear();
    client.catColour[slot].clear();
    client.catExtraCode[slot].clear();
    client.catBirthYear[slot].set(0);
    client.catSex[slot].set(0);
    client.catMicrochip[slot].set(0);
    client.catLastVaccination[slot].set(0);
    client.catInsurance[slot].set(0);
}

} // namespace

bool isCatSlotUsed(const ClientRecord& client, int slot)
{
    return hasLetterOrDigit(client.catName[slot].str());
}

void compactCats(ClientRecord& client)
{
    // Working down from the last slot, every empty slot is closed by moving the
    // cats above it down one place; repeated gaps close one after another.
    for (int slot = catSlotCount - 1; slot >= 0; --slot) {
        if (isCatSlotUsed(client, slot) || slot == catSlotCount - 1)
            continue;
        for (int t = slot; t < catSlotCount - 1; ++t) {
            moveCat(client, t, t + 1);
            emptyCat(client, t + 1);
        }
    }
}

void clearClientRecord(ClientRecord& client)
{
    std::memset(&client, 0, sizeof client);
}

} // namespace purrlodge
