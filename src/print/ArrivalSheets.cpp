#include "print/ArrivalSheets.h"

#include <algorithm>
#include <array>
#include <string>
#include <string_view>
#include <vector>

#include "clients/ClientDetails.h"
#include "print/PageLayout.h"
#include "print/PrintBuffer.h"
#include "print/PrintLineFormat.h"
#include "print/PrintedWidth.h"
#include "store/CatSlots.h"
#include "store/ClientFields.h"
#include "store/Dates.h"
#include "store/TextHelpers.h"

namespace purrlodge {

namespace {

// Every sheet fits the printable area of A4 (the narrower paper) and of
// Letter (the shorter): text from column 1 ends 7.5 inches from the left, and
// a centred line, centred on 4 inches, stays within 0.5 to 7.5 inches.
constexpr double widthFromColumn1 = 7.25;
constexpr double centredWidth = 7.0;
// Letter is 10.5 inches high inside quarter-inch margins; some printers keep
// wider ones.
constexpr double usableDepth = 10.0;

constexpr std::string_view blank = " ";
constexpr std::string_view gapFormat = "5, 0, 0, 3, n, 000, A";
constexpr std::string_view sectionGapFormat = "3, 0, 0, 3, n, 000, A";

constexpr int arial = 3;
constexpr std::string_view redNotePrefix = "#R# ";

// A text that says something: one with a letter or digit.
bool present(std::string_view text)
{
    return hasLetterOrDigit(text);
}

// The parts that say something, joined by the separator.
std::string joined(const std::vector<std::string>& parts, std::string_view separator)
{
    std::string line;
    for (const std::string& part : parts) {
        if (!present(part))
            continue;
        if (!line.empty())
            line += separator;
        line += part;
    }
    return line;
}

std::string personLine(const ClientRecord& client)
{
    return joined({client.style.str(), client.firstName.str(), client.surname.str()}, " ");
}

// The slots of the cats ticked for the stay, in slot order.
std::vector<int> catsInStay(const ArrivalSheetValues& values)
{
    std::vector<int> slots;
    for (int slot = 0; slot < catSlotCount; ++slot) {
        if (isCatSlotUsed(values.client, slot) && values.stay.catInStay[slot].get() != 0)
            slots.push_back(slot);
    }
    return slots;
}

// "Arrives Wednesday 28/10/26 (morning)".
std::string dateLine(std::string_view verb, const FixedText<25>& date, std::string_view weekday,
                     const FixedText<25>& remark)
{
    std::string line = joined({std::string(verb), std::string(weekday), date.str()}, " ");
    if (present(remark.str()))
        line += " (" + remark.str() + ")";
    return line;
}

std::string arrivalLine(const StayRecord& stay)
{
    return dateLine("Arrives", stay.arrivalDate, stay.arrivalWeekday.str(), stay.arrivalRemark);
}

std::string departureLine(const StayRecord& stay)
{
    return dateLine("Leaves", stay.departureDate, stay.departureWeekday.str(),
                    stay.departureRemark);
}

// The text in as many lines as it needs, up to `maxLines`, each within the
// width, all in one format.
void addWrapped(PrintBuffer& buffer, std::string_view text, PrintedFont font, double inches,
                std::size_t maxLines, std::string_view format)
{
    for (const std::string& line : wrapToWidth(text, font, inches, maxLines))
        buffer.add(line, format);
}

// The cattery's name's format, recoloured with the name's colour scheme when
// the sheet prints in colour.
std::string catteryNameFormat(const ArrivalSheetValues& values, std::string_view format,
                              RandomDraw& draw)
{
    return values.inColour ? recolourFormat(format, values.nameColourIndex, draw)
                           : std::string(format);
}

// The cats' names, large and centred: as many to a line as fit, at the
// larger size while two lines hold them all, else at the smaller.
void addCatNames(PrintBuffer& buffer, const ClientRecord& client, const std::vector<int>& cats)
{
    const auto linesAt = [&](int size) {
        std::vector<std::string> lines;
        for (const int slot : cats) {
            const std::string name = client.catName[slot].str();
            const std::string longer = lines.empty() ? "" : lines.back() + ",  " + name;
            if (!lines.empty() && printedWidth(longer, {arial, size}) <= centredWidth)
                lines.back() = longer;
            else
                lines.push_back(name);
        }
        return lines;
    };
    int size = 1;
    std::vector<std::string> lines = linesAt(size);
    if (lines.size() > 2)
        lines = linesAt(++size);
    for (const std::string& line : lines)
        buffer.add(line, formatted("%db, 0, 0, 3, n, 000, C", size));
}

// The letter and '+' for state 2 (yes), '-' for 1 (no) and '?' for anything
// else (not known): "C+I-" for a cat with a chip and no insurance.
std::string stateToken(char letter, std::int32_t state)
{
    const char mark = state == 2 ? '+' : state == 1 ? '-' : '?';
    return std::string{letter, mark};
}

// The sex letter, with '?' for a sex not stated.
char sexOf(std::int32_t code)
{
    return code <= 0 ? '?' : sexLetter(code);
}

std::string foodsOf(const FixedText<25> (&foods)[foodsPerCat])
{
    return joined({foods[0].str(), foods[1].str(), foods[2].str()}, ", ");
}

// How the cats' particulars are set on the pen card: the first layout that
// lets the page fit is used, so a few cats print roomy and six still fit.
struct PenCardCats {
    int particularsSize = 4;
    bool gapBetween = true;
};
constexpr std::array<PenCardCats, 4> penCardCatLayouts{
    {{3, true}, {4, true}, {4, false}, {5, false}}};

// One cat on the pen card: its name in bold with the breed and colour beside
// it, then, indented, its sex, age, chip and insurance and last vaccination,
// and the foods it likes and must not be given.
void addPenCardCat(PrintBuffer& buffer, const ArrivalSheetValues& values, int slot,
                   int particularsSize)
{
    const ClientRecord& client = values.client;
    // The name from column 1 has 1.5 inches before the particulars at column 7.
    constexpr double nameWidth = 1.4;
    constexpr double particularsWidth = widthFromColumn1 - 1.5;
    const PrintedFont particularsFont{arial, particularsSize};
    const std::string particularsFormat = formatted("%d, 7, 0, 3, n, 000, A", particularsSize);

    buffer.add(cutToWidth(client.catName[slot].str(), {arial, 3}, nameWidth),
               "3b, 1, 0, 3, n, 000, A");
    const std::string looks =
        joined({client.catBreed[slot].str(), client.catColour[slot].str()}, ", ");
    if (!looks.empty())
        buffer.add(cutToWidth(looks, {arial, 3}, particularsWidth), "3, 7, -1, 3, n, 000, A");

    const std::string age = client.catBirthYear[slot].get() == 0
                                ? "Age ?"
                                : "Age " + std::to_string(values.stay.catAge[slot].get());
    const std::int32_t vaccinated = client.catLastVaccination[slot].get();
    const std::string particulars =
        std::string(1, sexOf(client.catSex[slot].get())) + "     " + age + "     " +
        stateToken('C', client.catMicrochip[slot].get()) +
        stateToken('I', client.catInsurance[slot].get()) + "     Last Vac: " +
        (vaccinated <= 0 ? std::string("not known") : monthAndYearText(vaccinated, values.clock));
    buffer.add(cutToWidth(particulars, particularsFont, particularsWidth), particularsFormat);

    const std::string likes = foodsOf(client.favouriteFoods[slot]);
    if (!likes.empty())
        addWrapped(buffer, "Likes: " + likes, particularsFont, particularsWidth, 2,
                   particularsFormat);
    const std::string forbidden = foodsOf(client.forbiddenFoods[slot]);
    if (!forbidden.empty())
        addWrapped(buffer, "Not to be given: " + forbidden, particularsFont, particularsWidth, 2,
                   particularsFormat);
}

// The length of the stay as it is charged: "8 days" or "7 nights".
std::string lengthText(const ArrivalSheetValues& values)
{
    return formatted(values.perDay ? "%d days" : "%d nights", values.stay.length.get());
}

void fillPenCard(PrintBuffer& buffer, const ArrivalSheetValues& values,
                 const std::string& nameFormat, PenCardCats layout)
{
    const ClientRecord& client = values.client;
    const StayRecord& stay = values.stay;
    const std::vector<int> cats = catsInStay(values);
    constexpr std::string_view lineFormat = "4, 1, 0, 3, n, 000, A";
    constexpr PrintedFont lineFont{arial, 4};

    buffer.clear();
    if (!nameFormat.empty()) {
        buffer.add(values.establishment.name.str(), nameFormat);
        buffer.add(blank, gapFormat);
    }
    addCatNames(buffer, client, cats);
    buffer.add(personLine(client), "4, 0, 0, 3, n, 000, C");
    buffer.add(blank, gapFormat);

    const std::string medication = medicationOf(stay);
    const std::string feeding = feedingChangesOf(stay);
    if (present(medication))
        addWrapped(buffer, "Medication: " + medication, {arial, 2}, widthFromColumn1, 3,
                   "2b, 1, 0, 3, n, 000, A");
    if (present(feeding))
        addWrapped(buffer, "Feeding changes: " + feeding, {arial, 2}, widthFromColumn1, 3,
                   "2, 1, 0, 3, n, 000, A");
    if (present(medication) || present(feeding))
        buffer.add(blank, gapFormat);

    buffer.add(arrivalLine(stay), "3b, 1, 0, 3, n, 000, A");
    buffer.add(departureLine(stay), "3b, 1, 0, 3, n, 000, A");
    buffer.add(blank, gapFormat);

    for (const int slot : cats) {
        if (layout.gapBetween && slot != cats.front())
            buffer.add(blank, gapFormat);
        addPenCardCat(buffer, values, slot, layout.particularsSize);
    }
    buffer.add(blank, gapFormat);

    for (const auto& note : client.notes) {
        const std::string text = note.str();
        if (text.starts_with(redNotePrefix))
            addWrapped(buffer, text.substr(redNotePrefix.size()), {arial, 4}, widthFromColumn1, 2,
                       "4b, 1, 0, 3, n, 900, A");
    }
    const std::string contact = emergencyContactOf(stay);
    addWrapped(buffer, "Emergency contact: " + (present(contact) ? contact : "not given"), lineFont,
               widthFromColumn1, 2, lineFormat);
    buffer.add("Vet: " + client.vet.str(), lineFormat);
    const std::string status = vaccinationStatusOf(stay);
    addWrapped(buffer, present(status) ? status : "Vaccination status not known", {arial, 4},
               widthFromColumn1, 2,
               status == vaccinationCertsOk ? "4b, 1, 0, 3, n, 000, A" : "4b, 1, 0, 3, n, 900, A");
}

} // namespace

void fillArrivalSheet1(PrintBuffer& buffer, const ArrivalSheetValues& values, RandomDraw& draw)
{
    const EstablishmentRecord& establishment = values.establishment;
    const std::string nameFormat =
        !establishment.name.isEmpty() && contains(establishment.displayFlags.str(), "C")
            ? catteryNameFormat(values, "2b, 0, 0, 2, n, 000, C", draw)
            : std::string();
    for (const PenCardCats& layout : penCardCatLayouts) {
        fillPenCard(buffer, values, nameFormat, layout);
        if (printedDepth(buffer) <= usableDepth)
            return;
    }
}

void fillArrivalSheet2(PrintBuffer& buffer, const ArrivalSheetValues& values, RandomDraw& draw)
{
    const EstablishmentRecord& establishment = values.establishment;
    const ClientRecord& client = values.client;
    const StayRecord& stay = values.stay;
    constexpr std::string_view lineFormat = "3, 1, 0, 3, n, 000, A";
    constexpr std::string_view smallFormat = "4, 1, 0, 3, n, 000, A";

    buffer.clear();
    if (!establishment.name.isEmpty())
        buffer.add(establishment.name.str(),
                   catteryNameFormat(values, "1b, 0, 0, 2, n, 000, C", draw));
    std::vector<std::string> address;
    for (const auto& line : establishment.address)
        address.push_back(line.str());
    addWrapped(buffer, joined(address, ", "), {1, 4}, centredWidth, 2, "4, 0, 0, 1, n, 000, C");
    if (present(establishment.telephone.str()))
        buffer.add("Tel: " + establishment.telephone.str(), "4, 0, 0, 1, n, 000, C");
    buffer.add(blank, sectionGapFormat);
    buffer.add("Arrival Sheet", "2b, 0, 0, 3, u, 000, C");
    buffer.add(blank, sectionGapFormat);

    buffer.add(personLine(client), "3b, 1, 0, 3, n, 000, A");
    for (const auto& line : client.address) {
        if (present(line.str()))
            buffer.add(line.str(), smallFormat);
    }
    std::string telephones;
    if (present(client.telephone.str()))
        telephones = "Tel: " + client.telephone.str();
    const std::string mobile = mobileNumberOf(client);
    if (present(mobile))
        telephones += (telephones.empty() ? "" : "     ") + ("Mobile: " + mobile);
    if (!telephones.empty())
        buffer.add(telephones, smallFormat);
    buffer.add("Vet: " + client.vet.str(), smallFormat);
    buffer.add(blank, sectionGapFormat);

    buffer.add("Cats boarding:", "3b, 1, 0, 3, n, 000, A");
    for (const int slot : catsInStay(values)) {
        buffer.add(cutToWidth(client.catName[slot].str(), {arial, 3}, 1.2),
                   "3, 2, 0, 3, n, 000, A");
        if (present(client.catBreed[slot].str()))
            buffer.add(client.catBreed[slot].str(), "3, 7, -1, 3, n, 000, A");
    }
    buffer.add(blank, sectionGapFormat);

    buffer.add(arrivalLine(stay), lineFormat);
    buffer.add(departureLine(stay), lineFormat);
    buffer.add("Length of stay: " + lengthText(values), lineFormat);
    if (standardExtraWantedIn(stay) && present(values.standardExtraName))
        buffer.add("Also booked: " + values.standardExtraName, lineFormat);
    const std::string contact = emergencyContactOf(stay);
    // Left for the owner to fill in when none was given.
    addWrapped(buffer,
               "Emergency contact: " +
                   (present(contact) ? contact : "..........................................."),
               {arial, 3}, widthFromColumn1, 2, lineFormat);
    buffer.add(blank, sectionGapFormat);

    for (const auto& line : establishment.arrivalSheetLine) {
        if (present(line.str()))
            addWrapped(buffer, line.str(), {1, 4}, widthFromColumn1, 2, "4, 1, 0, 1, n, 000, A");
    }
    // At the foot of the page, or below the last line when that is lower.
    buffer.add("Signed ............................................     Date ....................",
               "3, 0, 0, 3, n, 000, X");
}

void fillReturnSheet(PrintBuffer& buffer, const ArrivalSheetValues& values, bool testPattern)
{
    buffer.clear();
    if (testPattern) {
        // Black first, then every other colour a scheme prints in.
        std::vector<std::string_view> colours{"000"};
        for (int scheme = 0; scheme < colourSchemeCount; ++scheme) {
            const std::string_view field = schemeColourField(scheme);
            if (std::find(colours.begin(), colours.end(), field) == colours.end())
                colours.push_back(field);
        }
        for (const std::string_view field : colours)
            buffer.add("This is " + std::string(field),
                       "2b, 2, 0, 3, n, " + std::string(field) + ", A");
        return;
    }

    const ClientRecord& client = values.client;
    const StayRecord& stay = values.stay;
    constexpr std::string_view headingFormat = "3b, 1, 0, 3, n, 000, A";
    constexpr std::string_view itemFormat = "3, 2, 0, 3, n, 000, A";
    constexpr PrintedFont itemFont{arial, 3};
    constexpr double itemWidth = widthFromColumn1 - 0.25;

    buffer.add("Return Sheet", "2b, 0, 0, 3, u, 000, C");
    buffer.add(blank, sectionGapFormat);
    buffer.add(personLine(client), "2b, 1, 0, 3, n, 000, A");
    if (present(client.telephone.str()))
        buffer.add("Tel: " + client.telephone.str(), "4, 1, 0, 3, n, 000, A");
    buffer.add(blank, sectionGapFormat);

    buffer.add(departureLine(stay), headingFormat);
    buffer.add(blank, sectionGapFormat);
    buffer.add("Cats going home:", headingFormat);
    for (const int slot : catsInStay(values))
        buffer.add("[  ] " + client.catName[slot].str(), "2, 2, 0, 3, n, 000, A");
    buffer.add(blank, sectionGapFormat);

    const std::string items = itemsBroughtOf(stay);
    buffer.add("Items to hand back:", headingFormat);
    addWrapped(buffer, present(items) ? items : "none recorded", itemFont, itemWidth, 3,
               itemFormat);
    const std::string medication = medicationOf(stay);
    if (present(medication)) {
        buffer.add(blank, sectionGapFormat);
        buffer.add("Medication to hand back:", headingFormat);
        addWrapped(buffer, medication, itemFont, itemWidth, 3, itemFormat);
    }
    buffer.add(blank, sectionGapFormat);
    buffer.add(blank, sectionGapFormat);
    buffer.add("Account to be settled before the cats go home", "2b, 1, 0, 3, n, 000, A");
}

} // namespace purrlodge
