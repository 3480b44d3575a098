#include "clients/CatNameChange.h"

#include "store/TextHelpers.h"

namespace purrlodge {

std::string nameChangedChoiceText(std::string_view oldName, std::string_view newName)
{
    return std::string(oldName) + "'s name was changed to " + std::string(newName);
}

std::string newCatChoiceText(std::string_view oldName, std::string_view newName)
{
    return std::string(oldName) + " has been replaced by a new cat " + std::string(newName);
}

bool isCatNameChange(std::string_view storedName, std::string_view typedName)
{
    if (!hasLetterOrDigit(storedName) || !hasLetterOrDigit(typedName))
        return false;
    return !equalsIgnoringCase(trim(storedName), trim(typedName));
}

void forgetReplacedCat(ClientRecord& client, int slot)
{
    client.catExtraCode[slot].clear();
}

} // namespace purrlodge
