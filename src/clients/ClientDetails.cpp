#include "clients/ClientDetails.h"

#include "ports/Clock.h"
#include "store/CatSlots.h"
#include "store/ClientFields.h"
#include "store/ClientFiles.h"
#include "store/DataFolder.h"
#include "store/Dates.h"
#include "store/TextHelpers.h"

namespace purrlodge {

namespace {

// A listing's cat line ends in ", " when a later slot still holds a cat, so a
// record with a gap between its cats still reads as one list.
bool laterCatFollows(const ClientRecord& client, int slot)
{
    for (int later = slot + 1; later < catSlotCount; ++later) {
        if (isCatSlotUsed(client, later))
            return true;
    }
    return false;
}

// "name\t[sex]\tAge=n\t", the start both listings share; they differ only in
// how an unknown year of birth shows.
std::string catLineStart(const ClientRecord& client, int slot, int currentYear,
                         std::string_view unknownAge)
{
    const std::int32_t birthYear = client.catBirthYear[slot].get();
    std::string line = client.catName[slot].str();
    line += "\t[";
    line += sexLetter(client.catSex[slot].get());
    line += "]\t";
    line += birthYear != 0 ? "Age=" + std::to_string(yearsSince(birthYear, currentYear))
                           : std::string(unknownAge);
    line += '\t';
    return line;
}

std::string currentCatLine(const ClientRecord& client, int slot, int currentYear,
                           const Clock& clock)
{
    // An unknown year of birth shows the characters "%Age= ??" exactly so.
    std::string line = catLineStart(client, slot, currentYear, "%Age= ??");
    line += client.catColour[slot].str();
    line += ' ';
    line += client.catBreed[slot].str();
    line += "\t  ";
    line += chipWord(client.catMicrochip[slot].get());
    line += " / ";
    line += insuranceWord(client.catInsurance[slot].get());
    line += "   (Last Vac: " + monthAndYearText(client.catLastVaccination[slot].get(), clock) + ')';
    return line;
}

std::string pastCatLine(const ClientRecord& client, int slot, int currentYear, const Clock& clock)
{
    std::string line = catLineStart(client, slot, currentYear, "Age= ??");
    line += client.catColour[slot].str();
    line += "\t(Last Vac: " + monthAndYearText(client.catLastVaccination[slot].get(), clock) + ')';
    return line;
}

// "Likes:\t%s%c %s%c %s": a comma follows an entry only when the next one holds
// something.
std::string foodLine(std::string_view heading, const FixedText<25> (&foods)[foodsPerCat])
{
    std::string line(heading);
    line += '\t';
    line += foods[0].str();
    line += hasLetterOrDigit(foods[1].str()) ? ',' : ' ';
    line += ' ';
    line += foods[1].str();
    line += hasLetterOrDigit(foods[2].str()) ? ',' : ' ';
    line += ' ';
    line += foods[2].str();
    return line;
}

std::string firstRegisteredLine(const ClientRecord& client, bool twoFigureYear, const Clock& clock)
{
    const std::int32_t registered = client.firstRegistered.get();
    const std::string known = std::to_string(client.knownRating.get());
    if (registered <= 0)
        return "First Registered:  Not Recorded  (Known rating - " + known + ')';
    const CivilTime date = clock.toLocal(registered);
    const int year = twoFigureYear ? date.year % 100 : date.year;
    return "First Registered: " + formatted("%02d/%02d/%02d", date.day, date.month, year) +
           "    (Known rating = " + known + ')';
}

enum class Variant { Current, Past };

ClientDetailsListing buildListing(const ClientRecord& client, std::string_view finderCode,
                                  int currentYear, const Clock& clock, Variant variant)
{
    const bool current = variant == Variant::Current;
    ClientDetailsListing listing;
    auto& lines = listing.lines;

    lines.push_back(client.style.str() + ' ' + client.firstName.str() + ' ' + client.surname.str());
    for (int line = 0; line < 3; ++line) {
        if (hasLetterOrDigit(client.address[line].str()))
            lines.push_back(client.address[line].str());
    }
    // The fourth address line shares its line with the telephone.
    lines.push_back(client.address[3].str() + "\t\tTel: " + client.telephone.str());
    if (current)
        lines.push_back("\t\tMobile: " + mobileNumberOf(client));
    lines.insert(lines.end(), {" ", "E-mail: " + client.email.str(), " ",
                               "Vet is - " + client.vet.str(), " ", "Cats:"});

    for (int slot = 0; slot < catSlotCount; ++slot) {
        if (!isCatSlotUsed(client, slot))
            continue;
        std::string line = current ? currentCatLine(client, slot, currentYear, clock)
                                   : pastCatLine(client, slot, currentYear, clock);
        if (laterCatFollows(client, slot))
            line += ", ";
        lines.push_back(std::move(line));
    }

    lines.push_back(" ");
    lines.push_back("Most Recent Visit " + client.arrivalDate.str() + " -> " +
                    client.departureDate.str());
    lines.push_back(hasLetterOrDigit(client.lastInDate.str())
                        ? "Previous Last Visit: " + client.lastInDate.str() + " -> " +
                              client.lastOutDate.str()
                        : std::string("Previous Last Visit:  Not Recorded"));
    lines.push_back(firstRegisteredLine(client, !current, clock));

    lines.push_back(" ");
    lines.push_back("Notes:");
    for (const auto& note : client.notes) {
        if (hasLetterOrDigit(note.str()))
            lines.push_back(note.str());
    }

    lines.push_back(" ");
    lines.push_back("Feeding:");
    lines.push_back(foodLine("Likes:", client.favouriteFoods[0]));
    lines.push_back(foodLine("Doesn't Like:", client.forbiddenFoods[0]));

    lines.push_back("OFID = " + std::string(finderCode) + " / " + client.code.str());
    return listing;
}

} // namespace

std::string_view chipWord(std::int32_t chipState)
{
    return chipState == 2 ? "Chip+" : (chipState == 1 ? "Chip-" : "Chip?");
}

std::string_view insuranceWord(std::int32_t insuranceState)
{
    return insuranceState == 2 ? "Ins+" : (insuranceState == 1 ? "Ins-" : "Ins?");
}

ClientDetailsListing clientDetailsListing(const DataFolder& folder, const ClientRecord& client,
                                          std::string_view finderCode, int currentYear,
                                          const Clock& clock)
{
    ClientDetailsListing listing =
        buildListing(client, finderCode, currentYear, clock, Variant::Current);
    listing.caption = clientDetailsCaption;

    listing.otherCatsEnabled = folder.exists(clientFileName(finderCode, extension::earlierCats)) ||
                               folder.exists(clientFileName(finderCode, extension::otherCats));
    if (listing.otherCatsEnabled) {
        listing.lines.push_back(" ");
        listing.lines.push_back("                         There are other cats known to  " +
                                client.firstName.str() + ' ' + client.surname.str());
    }

    listing.specialNotesEnabled = folder.exists(clientFileName(finderCode, extension::noteBook));
    if (listing.specialNotesEnabled) {
        listing.lines.push_back(" ");
        listing.lines.push_back("                         There are Special Notes for " +
                                client.firstName.str());
    }
    return listing;
}

ClientDetailsListing pastClientDetailsListing(const ClientRecord& client,
                                              std::string_view finderCode, int currentYear,
                                              const Clock& clock)
{
    ClientDetailsListing listing =
        buildListing(client, finderCode, currentYear, clock, Variant::Past);
    listing.caption = "Detais of Previous Client " + client.style.str() + ' ' +
                      client.firstName.str() + ' ' + client.surname.str();
    return listing;
}

std::string vaccinationCertificateStatus(const ClientRecord& client,
                                         std::string_view validityYearsText, std::int64_t now)
{
    const std::int64_t validFor = std::int64_t{leadingInt(validityYearsText)} * secondsPerYear;
    for (int slot = 0; slot < catSlotCount; ++slot) {
        if (!isCatSlotUsed(client, slot))
            continue;
        if (std::int64_t{client.catLastVaccination[slot].get()} + validFor < now) {
            return "At least one Vac Cert is more than " + std::string(validityYearsText) +
                   " years old!";
        }
    }
    return std::string(vaccinationCertsOk);
}

} // namespace purrlodge
