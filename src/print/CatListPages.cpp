#include "ports/Clock.h"
#include "print/ClientListPages.h"
#include "store/CatSlots.h"
#include "store/TextHelpers.h"

namespace purrlodge {

namespace {

// Cat with its sex and age, colour and breed, owner: 7.75 inches in all. A
// text a column, so that a page of the print buffer holds some thirty cats.
const std::vector<ListColumn> catColumns{
    {"Cat (sex, age)", 0, 7}, {"Colour and breed", 7, 10}, {"Owner", 17, 14}};

// "Tibbles (F, 7)", with "?" for what is not known.
std::string catWithSexAndAge(const ClientRecord& client, int slot, int currentYear)
{
    const std::string age = catAge(client, slot, currentYear);
    return trim(client.catName[slot].str()) + " (" + catSex(client, slot) + ", " +
           (age == "??" ? "?" : age) + ")";
}

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
            block.rows.push_back(
                {catWithSexAndAge(client, slot, currentYear),
                 trim(trim(client.catColour[slot].str()) + ' ' + trim(client.catBreed[slot].str())),
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
