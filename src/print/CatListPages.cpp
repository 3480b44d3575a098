#include "ports/Clock.h"
#include "print/ClientListPages.h"
#include "store/CatSlots.h"
#include "store/TextHelpers.h"

namespace purrlodge {

namespace {

// Cat, breed, colour, sex, age and owner: 7.75 inches in all.
const std::vector<ListColumn> catColumns{{"Cat", 0, 5},  {"Breed", 5, 5}, {"Colour", 10, 6},
                                         {"Sex", 16, 2}, {"Age", 18, 2},  {"Owner", 20, 11}};

} // namespace

ListPages catListPages(const ClientListContext& context, const std::vector<ListedClient>& clients)
{
    const int currentYear = context.clock.toLocal(context.clock.now()).year;
    std::vector<ListBlock> blocks;
    std::size_t cats = 0;
    for (const ListedClient& listed : clients) {
        const ClientRecord& client = listed.record;
        ListBlock block;
        for (int slot = 0; slot < catSlotCount; ++slot) {
            if (!isCatSlotUsed(client, slot))
                continue;
            block.rows.push_back({trim(client.catName[slot].str()),
                                  trim(client.catBreed[slot].str()),
                                  trim(client.catColour[slot].str()), catSex(client, slot),
                                  catAge(client, slot, currentYear),
                                  block.rows.empty() ? ownerName(client) : std::string()});
        }
        cats += block.rows.size();
        // A client with no cats has nothing to show here.
        if (!block.rows.empty())
            blocks.push_back(std::move(block));
    }
    return ListPages({context.catteryName, "Cat List", listSubtitle(context.clock, cats, "cat")},
                     catColumns, std::move(blocks), "There are no cats of current clients.");
}

} // namespace purrlodge
