#include "clients/LeavingCat.h"

#include <cstring>

#include "ports/Ui.h"
#include "store/ClientFiles.h"
#include "store/DataFolder.h"
#include "store/Dates.h"

namespace purrlodge {

namespace {

void clearOtherCats(OtherCatsFile& file)
{
    std::memset(file.cats, 0, sizeof file.cats);
    for (OtherCatRecord& cat : file.cats)
        cat.sex.set(-1);
}

} // namespace

std::string leavingCatCaption(std::string_view catName)
{
    return "What happened to " + std::string(catName) + " ?";
}

std::string_view leavingReasonText(LeavingReason reason)
{
    switch (reason) {
    case LeavingReason::Lost:
        return "Lost";
    case LeavingReason::Death:
        return "";
    case LeavingReason::NewHome:
        return "Rehomed";
    case LeavingReason::Other:
    case LeavingReason::NotGiven:
        break;
    }
    return "Unknown reason";
}

DepartingCat departingCatOf(const ClientRecord& client, int slot)
{
    DepartingCat cat;
    cat.name = client.catName[slot].str();
    cat.breed = client.catBreed[slot].str();
    cat.colour = client.catColour[slot].str();
    cat.sex = client.catSex[slot].get();
    cat.birthYear = client.catBirthYear[slot].get();
    return cat;
}

OtherCatRecord otherCatRecordOf(const DepartingCat& cat, const LeavingCatAnswer& answer,
                                const CivilTime& today, int currentYear)
{
    OtherCatRecord record{};
    record.sex.set(cat.sex);
    record.spare.set(0);
    record.colour.set(cat.colour);
    record.name.set(cat.name);
    record.breed.set(cat.breed);
    record.notes.set(std::string_view(answer.notes).substr(0, leavingCatNotesLength));
    record.history.set("Born " + std::to_string(cat.birthYear) + ",   Departed " +
                       formatDateText(today.day, today.month, today.year % 100) + ",   age " +
                       std::to_string(yearsSince(cat.birthYear, currentYear)));
    record.reason.set(leavingReasonText(answer.reason));
    return record;
}

bool appendOtherCat(const DataFolder& folder, std::string_view code, const OtherCatRecord& cat)
{
    const std::string name = clientFileName(code, extension::otherCats);
    OtherCatsFile file{};
    if (!folder.read(name, file))
        clearOtherCats(file);
    for (int at = 0; at + 1 < otherCatsKept; ++at)
        file.cats[at] = file.cats[at + 1];
    file.cats[otherCatsKept - 1] = cat;
    return folder.write(name, file);
}

Message movedToOtherCatsMessage(std::string_view catName, std::string_view firstName,
                                std::string_view surname)
{
    return {std::string(catName) + " has been moved to " + std::string(firstName) + " " +
                std::string(surname) + "'s 'Other Cats' list",
            "Other Cats", MessageIcon::None};
}

bool moveCatToOtherCats(const DataFolder& folder, Ui& ui, const CivilTime& today, int currentYear,
                        const ClientRecord& client, const DepartingCat& cat,
                        const LeavingCatAnswer& answer)
{
    const OtherCatRecord record = otherCatRecordOf(cat, answer, today, currentYear);
    if (!appendOtherCat(folder, client.code.str(), record))
        return false;
    ui.showMessage(movedToOtherCatsMessage(cat.name, client.firstName.str(), client.surname.str()));
    return true;
}

} // namespace purrlodge
