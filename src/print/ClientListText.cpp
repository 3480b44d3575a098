#include "ports/Clock.h"
#include "print/ClientListPages.h"
#include "store/CatSlots.h"
#include "store/ClientFields.h"
#include "store/Dates.h"
#include "store/TextHelpers.h"

namespace purrlodge {

std::string ownerName(const ClientRecord& client)
{
    std::string name;
    for (const std::string& part :
         {trim(client.style.str()), trim(client.firstName.str()), trim(client.surname.str())}) {
        if (part.empty())
            continue;
        if (!name.empty())
            name += ' ';
        name += part;
    }
    return name;
}

std::string catNames(const ClientRecord& client)
{
    std::string names;
    for (int slot = 0; slot < catSlotCount; ++slot) {
        if (!isCatSlotUsed(client, slot))
            continue;
        if (!names.empty())
            names += ", ";
        names += trim(client.catName[slot].str());
    }
    return names;
}

std::string catAge(const ClientRecord& client, int slot, int currentYear)
{
    const std::int32_t birthYear = client.catBirthYear[slot].get();
    return birthYear != 0 ? std::to_string(yearsSince(birthYear, currentYear)) : "??";
}

std::string catSex(const ClientRecord& client, int slot)
{
    const std::int32_t sex = client.catSex[slot].get();
    return sex <= 0 ? "?" : std::string(1, sexLetter(sex));
}

std::string listSubtitle(const Clock& clock, std::size_t count, const std::string& what)
{
    const CivilTime today = clock.toLocal(clock.now());
    return formatDateText(today.day, today.month, today.year % 100) + "   -   " +
           std::to_string(count) + ' ' + what + (count == 1 ? "" : "s");
}

} // namespace purrlodge
