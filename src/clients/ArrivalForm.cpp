#include "clients/ArrivalForm.h"

#include <algorithm>
#include <limits>
#include <optional>

#include "clients/ClientDetails.h"
#include "ports/Clock.h"
#include "store/CatSlots.h"
#include "store/ClientFields.h"
#include "store/Dates.h"
#include "store/TextHelpers.h"

namespace purrlodge {

namespace {

std::string cut(const std::string& text, std::size_t limit)
{
    return text.substr(0, limit);
}

// "likes Chicken, Fish; never Milk" from a cat's food lists.
std::string foodsOf(const ClientRecord& client, int slot)
{
    const auto joined = [](const FixedText<25>(&foods)[foodsPerCat]) {
        std::string text;
        for (const auto& food : foods)
            if (hasLetterOrDigit(food.str()))
                text += (text.empty() ? "" : ", ") + food.str();
        return text;
    };
    const std::string likes = joined(client.favouriteFoods[slot]);
    const std::string never = joined(client.forbiddenFoods[slot]);
    std::string text;
    if (!likes.empty())
        text = "likes " + likes;
    if (!never.empty())
        text += (text.empty() ? "" : "; ") + std::string("never ") + never;
    return text;
}

std::vector<std::string> clientChecksOf(const ClientRecord& client)
{
    std::vector<std::string> lines;
    for (int slot = 0; slot < catSlotCount; ++slot) {
        if (!isCatSlotUsed(client, slot))
            continue;
        std::string line = client.catName[slot].str() + ": " +
                           std::string(chipWord(client.catMicrochip[slot].get())) + " / " +
                           std::string(insuranceWord(client.catInsurance[slot].get()));
        const std::string foods = foodsOf(client, slot);
        if (!foods.empty())
            line += "; " + foods;
        lines.push_back(line);
    }
    lines.push_back("Vet: " + client.vet.str());
    for (const auto& note : client.notes)
        if (hasLetterOrDigit(note.str()))
            lines.push_back(note.str());
    return lines;
}

// The date number of a typed date that passes the date rules, else nothing.
std::optional<std::int64_t> numberOfGoodDate(const std::string& date)
{
    const DateParts parts = readDateParts(date);
    if (parts.month < 1 || parts.month > 12 || parts.day < 1 ||
        parts.day > monthLength(parts.month, isLeapYear(parts.year)))
        return std::nullopt;
    return dateToNumber(date);
}

std::int32_t clampedToInt32(std::int64_t value)
{
    constexpr std::int64_t low = std::numeric_limits<std::int32_t>::min();
    constexpr std::int64_t high = std::numeric_limits<std::int32_t>::max();
    return static_cast<std::int32_t>(value < low ? low : (value > high ? high : value));
}

} // namespace

bool holdsNextStay(const StayRecord& stay, const Clock& clock)
{
    if (!hasLetterOrDigit(stay.arrivalDate.str()))
        return false;
    const std::optional<std::int64_t> departure = numberOfGoodDate(stay.departureDate.str());
    // The date number is noon of the day: the stay lasts until its end.
    return departure && *departure + secondsPerDay / 2 > clock.now();
}

ArrivalForm openArrivalForm(const ClientRecord& client, const StayRecord& stay,
                            const EstablishmentRecord& establishment, const RatesRecord& rates,
                            const Clock& clock, const std::array<bool, arrivalSheetCount>& sheets)
{
    ArrivalForm form;
    form.clientLine = formatted("%s %s %s", client.style.str().c_str(),
                                client.firstName.str().c_str(), client.surname.str().c_str());
    const bool booked = holdsNextStay(stay, clock);
    bool anyTicked = false;
    for (int slot = 0; slot < catSlotCount; ++slot)
        anyTicked = anyTicked || (isCatSlotUsed(client, slot) && stay.catInStay[slot].get() != 0);
    for (int slot = 0; slot < catSlotCount; ++slot) {
        const auto s = static_cast<std::size_t>(slot);
        form.catShown[s] = isCatSlotUsed(client, slot);
        form.cats[s].name = client.catName[slot].str();
        form.cats[s].ticked =
            form.catShown[s] && (!booked || !anyTicked || stay.catInStay[slot].get() != 0);
    }
    if (hasLetterOrDigit(rates.standardExtraName.str()))
        form.standardExtraName = rates.standardExtraName.str();
    if (booked) {
        form.arrival = cut(stay.arrivalDate.str(), stayDateTypedLimit);
        form.departure = cut(stay.departureDate.str(), stayDateTypedLimit);
        form.arrivalRemark = stay.arrivalRemark.str();
        form.departureRemark = stay.departureRemark.str();
        form.standardExtraWanted = !form.standardExtraName.empty() && standardExtraWantedIn(stay);
        form.medication = cut(medicationOf(stay), stayLineTypedLimit);
        form.feedingChanges = cut(feedingChangesOf(stay), stayLineTypedLimit);
        form.emergencyContact = cut(emergencyContactOf(stay), stayLineTypedLimit);
        form.itemsBrought = cut(itemsBroughtOf(stay), stayLineTypedLimit);
    }
    form.vaccinationStatus =
        vaccinationCertificateStatus(client, establishment.vaccinationYears.str(), clock.now());
    form.clientChecks = clientChecksOf(client);
    form.sheets = sheets;
    return form;
}

std::string stayLengthText(std::string arrival, std::string departure, const RatesRecord& rates)
{
    // Typed as OK will take them: a four-digit year loses its century.
    if (countCheckAndNormalise(arrival, 2) != 0 || countCheckAndNormalise(departure, 2) != 0 ||
        !numberOfGoodDate(arrival) || !numberOfGoodDate(departure))
        return {};
    const bool perDay = chargesPerDay(rates);
    const std::int64_t length = chargedDays(arrival, departure, perDay);
    if (length < 0)
        return {};
    return std::to_string(length) + (perDay ? " days" : " nights");
}

StayRecord stayRecordOf(const ArrivalForm& form, const ClientRecord& client,
                        const RatesRecord& rates, const StayRecord& earlier, const Clock& clock)
{
    StayRecord stay{};
    stay.number = earlier.number;
    std::copy(std::begin(earlier.unused1), std::end(earlier.unused1), std::begin(stay.unused1));
    std::copy(std::begin(earlier.unused2), std::end(earlier.unused2), std::begin(stay.unused2));
    stay.standardExtraChosen[1] = earlier.standardExtraChosen[1];
    stay.standardExtraChosen[2] = earlier.standardExtraChosen[2];

    stay.arrivalDate.set(form.arrival);
    stay.departureDate.set(form.departure);
    stay.arrivalRemark.set(form.arrivalRemark);
    stay.departureRemark.set(form.departureRemark);
    stay.textLine1.set(form.medication);
    stay.textLine2.set(form.feedingChanges);
    stay.furtherLines[0].set(form.emergencyContact);
    stay.furtherLines[1].set(form.itemsBrought);
    stay.dialogText.set(form.vaccinationStatus);
    stay.arrivalWeekday.set(weekdayName(true, form.arrival, clock));
    stay.departureWeekday.set(weekdayName(true, form.departure, clock));
    stay.standardExtraChosen[0].set(form.standardExtraWanted ? 1 : 0);
    stay.length.set(
        clampedToInt32(chargedDays(form.arrival, form.departure, chargesPerDay(rates))));

    const int arrivalYear = clock.toLocal(dateToNumber(form.arrival)).year;
    for (int slot = 0; slot < catSlotCount; ++slot) {
        const auto s = static_cast<std::size_t>(slot);
        stay.catInStay[slot].set(form.catShown[s] && form.cats[s].ticked ? 1 : 0);
        const std::int32_t born = client.catBirthYear[slot].get();
        stay.catAge[slot].set(isCatSlotUsed(client, slot) && born > 0
                                  ? clampedToInt32(std::int64_t{arrivalYear} - born)
                                  : 0);
    }
    return stay;
}

std::string sheetsSetting(const std::array<bool, arrivalSheetCount>& sheets)
{
    std::string setting;
    for (int sheet = 0; sheet < arrivalSheetCount; ++sheet)
        if (sheets[static_cast<std::size_t>(sheet)])
            setting += static_cast<char>('1' + sheet);
    return setting.empty() ? "-" : setting;
}

std::array<bool, arrivalSheetCount> sheetsFromSetting(const std::string& setting)
{
    if (setting.empty())
        return {true, true, true};
    std::array<bool, arrivalSheetCount> sheets{};
    for (int sheet = 0; sheet < arrivalSheetCount; ++sheet)
        sheets[static_cast<std::size_t>(sheet)] =
            setting.find(static_cast<char>('1' + sheet)) != std::string::npos;
    return sheets;
}

} // namespace purrlodge
