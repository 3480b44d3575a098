#include "clients/ClientDetails.h"
#include "clients/ClientFormRules.h"
#include "ports/Clock.h"
#include "print/ClientListPages.h"
#include "store/CatSlots.h"
#include "store/ClientFields.h"
#include "store/Dates.h"
#include "store/TextHelpers.h"

namespace purrlodge {

namespace {

// What each line is, then what the record holds: 7.75 inches in all.
const std::vector<ListColumn> fullColumns{{"", 0, 6}, {"", 6, 25}};

void addLine(ListBlock& block, std::string label, std::string value)
{
    block.rows.push_back({std::move(label), std::move(value)});
}

// A label on the first of its lines only.
void addLines(ListBlock& block, const std::string& label, const std::vector<std::string>& values)
{
    for (std::size_t line = 0; line < values.size(); ++line)
        addLine(block, line == 0 ? label : std::string(), values[line]);
}

std::string catLine(const ClientRecord& client, int slot, int currentYear, const Clock& clock)
{
    std::string line = trim(client.catName[slot].str()) + "  [" + catSex(client, slot) + "]  Age " +
                       catAge(client, slot, currentYear);
    const std::string looks =
        trim(trim(client.catColour[slot].str()) + ' ' + trim(client.catBreed[slot].str()));
    if (!looks.empty())
        line += ",  " + looks;
    line += ",  " + std::string(chipWord(client.catMicrochip[slot].get())) + " / " +
            std::string(insuranceWord(client.catInsurance[slot].get()));
    const std::int32_t vaccinated = client.catLastVaccination[slot].get();
    line += ",  Last Vac: " + (vaccinated > 0 ? monthAndYearText(vaccinated, clock) : "not known");
    return line;
}

// "Tibbles: fish, chicken" for each cat with foods against its slot.
std::vector<std::string> foodLines(const ClientRecord& client,
                                   const FixedText<25> (&foods)[catSlotCount][foodsPerCat])
{
    std::vector<std::string> lines;
    for (int slot = 0; slot < catSlotCount; ++slot) {
        std::string named;
        for (const auto& food : foods[slot]) {
            if (!hasLetterOrDigit(food.str()))
                continue;
            if (!named.empty())
                named += ", ";
            named += trim(food.str());
        }
        if (named.empty())
            continue;
        const std::string cat = trim(client.catName[slot].str());
        lines.push_back(cat.empty() ? named : cat + ": " + named);
    }
    return lines;
}

std::string visit(const FixedText<13>& in, const FixedText<13>& out)
{
    if (!hasLetterOrDigit(in.str()))
        return "Not Recorded";
    return trim(in.str()) + " -> " + trim(out.str());
}

ListBlock clientBlock(const ListedClient& listed, int currentYear, const Clock& clock)
{
    const ClientRecord& client = listed.record;
    ListBlock block;
    addLine(block, "Client", ownerName(client));
    std::vector<std::string> address;
    for (const auto& line : client.address)
        if (hasLetterOrDigit(line.str()))
            address.push_back(trim(line.str()));
    addLines(block, "Address", address);
    addLine(block, "Telephone", trim(client.telephone.str()));
    addLine(block, "Mobile", trim(mobileNumberOf(client)));
    addLine(block, "E-mail", trim(client.email.str()));
    addLine(block, "Vet", trim(client.vet.str()));
    std::vector<std::string> cats;
    for (int slot = 0; slot < catSlotCount; ++slot)
        if (isCatSlotUsed(client, slot))
            cats.push_back(catLine(client, slot, currentYear, clock));
    addLines(block, "Cats", cats.empty() ? std::vector<std::string>{"None"} : cats);
    addLines(block, "Likes", foodLines(client, client.favouriteFoods));
    addLines(block, "Doesn't Like", foodLines(client, client.forbiddenFoods));
    // A red notes line prints in red, without its marker.
    bool firstNote = true;
    for (const auto& note : client.notes) {
        if (!hasLetterOrDigit(note.str()))
            continue;
        const bool red = contains(note.str(), redNoteMarker);
        block.redRows.resize(block.rows.size());
        block.redRows.push_back(red);
        addLine(block, firstNote ? "Notes" : "",
                trim(red ? textAfter(note.str(), redNoteMarker) : note.str()));
        firstNote = false;
    }
    addLine(block, "Recent Visit", visit(client.arrivalDate, client.departureDate));
    addLine(block, "Previous Visit", visit(client.lastInDate, client.lastOutDate));
    std::string registered = "Not Recorded";
    if (client.firstRegistered.get() > 0) {
        const CivilTime date = clock.toLocal(client.firstRegistered.get());
        registered = formatted("%02d/%02d/%04d", date.day, date.month, date.year);
    }
    addLine(block, "Registered",
            registered + "   (Known rating " + std::to_string(client.knownRating.get()) + ")");
    addLine(block, "Status", client.inactive.get() != 0 ? "Inactive" : "Active");
    addLine(block, "Code", listed.code);
    return block;
}

} // namespace

ListPages fullClientListPages(const ClientListContext& context,
                              const std::vector<ListedClient>& clients)
{
    const int currentYear = context.clock.toLocal(context.clock.now()).year;
    std::vector<ListBlock> blocks;
    for (const ListedClient& client : clients)
        blocks.push_back(clientBlock(client, currentYear, context.clock));
    return ListPages({context.catteryName, "Full Client List",
                      listSubtitle(context.clock, clients.size(), "client")},
                     fullColumns, std::move(blocks), "There are no current clients.");
}

} // namespace purrlodge
