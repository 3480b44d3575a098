#include "app/PictureNotes.h"

#include <cstddef>

namespace purrlodge {

namespace {

// Plain ASCII, so the texts are the same in every code page. Each comment
// names the picture drawn for the note (gui/resources/pictures).
constexpr std::array<std::string_view, pictureCount> notes{{
    // 0: a cat curled up asleep
    "Cats sleep for twelve to sixteen hours a day, and even more when they are "
    "settling into new surroundings. A guest who sleeps through the first "
    "afternoon is not unhappy: it is making itself at home.",
    // 1: a cat beside its water bowl
    "Many cats drink too little. Fresh water in a wide, shallow bowl, set away "
    "from the food bowl, tempts them to drink more; some prefer running water.",
    // 2: no note
    "",
    // 3: a cat with a ball of wool
    "Ten minutes of play twice a day keeps a boarding cat fit and content. A "
    "feather on a stick or a ball to chase works wonders; wool and string are "
    "best put away afterwards, as they are dangerous if swallowed.",
    // 4: a cat in a cardboard box
    "A box or a covered bed to hide in makes a cat feel safe. Give every guest "
    "somewhere to retreat to on its first days, and it will come out all the "
    "sooner.",
    // 5: no note
    "",
    // 6: a cat with a fish
    "Keep to the food a cat has at home. A sudden change of diet during a stay "
    "can upset its stomach; ask owners to bring a few days' supply.",
    // 7: a cat at a scratching post
    "Scratching keeps claws in trim and stretches the back. A sturdy post, tall "
    "enough for a full stretch, saves the bedding and the woodwork.",
    // 8: a cat being brushed
    "A gentle brush every day is a good chance to check the coat, the skin and "
    "the ears. Long-haired guests need it most: a knot caught early is easily "
    "teased out.",
    // 9: no note
    "",
    // 10: a cat with a mouse toy
    "Cats are hunters at heart. A toy mouse hidden for them to find, or a few "
    "biscuits in a puzzle feeder, gives a boarder something to do.",
    // 11: a cat on a cushion in the sun
    "Cats love a warm spot. A cushion in a patch of sunshine or near a radiator "
    "is the most popular seat in the house; make sure there is shade as well.",
    // 12: a cat beside a first-aid box
    "Ask to see the vaccination card at every booking. A cat whose boosters are "
    "up to date is protected against cat flu and enteritis, and so are all your "
    "other guests.",
    // 13: no note
    "",
    // 14: a mother cat with a kitten
    "Kittens under six months need small meals three or four times a day. Older "
    "cats manage well on two meals, at the times they are used to at home.",
    // 15: a cat with a collar and tag
    "A collar that fits allows two fingers underneath it. Note each cat's "
    "microchip on its record: it is the surest way home for a cat that gets "
    "lost.",
    // 16: no note
    "",
    // 17: a cat and a pot of cat grass
    "Lilies are poisonous to cats: even the pollen licked from the fur can harm "
    "the kidneys. Keep them out of the cattery, and out of reception too.",
    // 18: an old cat by the fire
    "Older cats like a softer bed and a quieter pen. Watch how much an elderly "
    "guest eats and drinks, and tell the owner of any change you notice.",
    // 19: no note
    "",
    // 20: two cats side by side
    "Cats from one household can share a pen, but strangers should not. A cat "
    "that can see other cats without meeting them feels less threatened.",
}};

} // namespace

std::string_view pictureNote(int pictureIndex)
{
    if (pictureIndex < 0 || pictureIndex >= pictureCount)
        return {};
    return notes[static_cast<std::size_t>(pictureIndex)];
}

std::array<bool, pictureCount> pictureNoteFlags()
{
    std::array<bool, pictureCount> flags{};
    for (std::size_t picture = 0; picture < flags.size(); ++picture)
        flags[picture] = !notes[picture].empty();
    return flags;
}

} // namespace purrlodge
