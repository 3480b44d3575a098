#include "housekeeping/AdmissionRegister.h"

#include <algorithm>

#include "accounts/AccountFiling.h"
#include "clients/ArrivalForm.h"
#include "ports/Clock.h"
#include "store/CatSlots.h"
#include "store/ClientCode.h"
#include "store/ClientFields.h"
#include "store/ClientFiles.h"
#include "store/DataFolder.h"
#include "store/Dates.h"
#include "store/TextHelpers.h"

namespace purrlodge {

namespace {

struct Admission {
    std::int64_t arrivalNumber = 0;
    AdmissionEntry entry;
};

// "Tibbles  (f, 7, Persian Cream)": the sex letter ('?' when not known), the
// age in the year of arrival, and the breed and colour when known.
std::string catLine(const ClientRecord& client, int slot, int arrivalYear)
{
    const std::int32_t sex = client.catSex[slot].get();
    const std::int32_t born = client.catBirthYear[slot].get();
    const std::string age =
        born > 0 ? std::to_string(std::int64_t{arrivalYear} - born) : std::string("age ?");
    const std::string description =
        trim(client.catBreed[slot].str() + " " + client.catColour[slot].str());
    return formatted("%s  (%c, %s%s)", client.catName[slot].str().c_str(),
                     sex > 0 ? sexLetter(sex) : '?', age.c_str(),
                     description.empty() ? "" : (", " + description).c_str());
}

AdmissionEntry ownerPart(const ClientRecord& client)
{
    AdmissionEntry entry;
    entry.owner = trim(formatted("%s %s %s", client.style.str().c_str(),
                                 client.firstName.str().c_str(), client.surname.str().c_str()));
    for (const auto& line : client.address)
        if (hasLetterOrDigit(line.str()))
            entry.address += (entry.address.empty() ? "" : ", ") + line.str();
    entry.telephone = client.telephone.str();
    const std::string mobile = mobileNumberOf(client);
    if (hasLetterOrDigit(mobile))
        entry.telephone += (entry.telephone.empty() ? "" : " / ") + mobile;
    entry.vet = client.vet.str();
    return entry;
}

std::optional<int> slotOfCatNamed(const ClientRecord& client, const std::string& name)
{
    for (int slot = 0; slot < catSlotCount; ++slot)
        if (isCatSlotUsed(client, slot) && toUpper(client.catName[slot].str()) == toUpper(name))
            return slot;
    return std::nullopt;
}

class Collector {
public:
    Collector(std::int64_t firstDay, std::int64_t lastDay, const Clock& clock)
        : firstDay_(firstDay), lastDay_(lastDay), clock_(clock)
    {}

    void addClient(const ClientRecord& client, const StayRecord& stay, const AccountBook& book)
    {
        std::vector<std::int64_t> listed;
        if (hasLetterOrDigit(stay.arrivalDate.str()) && inPeriod(stay.arrivalDate.str())) {
            AdmissionEntry entry = ownerPart(client);
            entry.arrival = stay.arrivalDate.str();
            entry.departure = stay.departureDate.str();
            const int year = yearOf(entry.arrival);
            for (int slot = 0; slot < catSlotCount; ++slot)
                if (isCatSlotUsed(client, slot) && stay.catInStay[slot].get() != 0)
                    entry.cats.push_back(catLine(client, slot, year));
            entry.emergencyContact = emergencyContactOf(stay);
            entry.vaccinationStatus = vaccinationStatusOf(stay);
            listed.push_back(dateToNumber(entry.arrival));
            admissions_.push_back({listed.back(), std::move(entry)});
        }
        for (const AccountRecord& account : book.accounts) {
            if (account.receiptNumber.get() == 0 || !inPeriod(account.arrivalDate.str()))
                continue;
            const std::int64_t arrival = dateToNumber(account.arrivalDate.str());
            if (std::find(listed.begin(), listed.end(), arrival) != listed.end())
                continue;
            AdmissionEntry entry = ownerPart(client);
            entry.arrival = account.arrivalDate.str();
            entry.departure = account.departureDate.str();
            const int year = yearOf(entry.arrival);
            for (const auto& name : account.catNames) {
                if (name.str().empty())
                    continue;
                const std::optional<int> slot = slotOfCatNamed(client, name.str());
                entry.cats.push_back(slot ? catLine(client, *slot, year) : name.str());
            }
            listed.push_back(arrival);
            admissions_.push_back({arrival, std::move(entry)});
        }
    }

    std::vector<AdmissionEntry> entries()
    {
        std::stable_sort(admissions_.begin(), admissions_.end(),
                         [](const Admission& a, const Admission& b) {
                             return a.arrivalNumber < b.arrivalNumber;
                         });
        std::vector<AdmissionEntry> result;
        result.reserve(admissions_.size());
        for (Admission& admission : admissions_)
            result.push_back(std::move(admission.entry));
        return result;
    }

private:
    bool inPeriod(const std::string& date) const
    {
        const std::int64_t number = dateToNumber(date);
        return number >= firstDay_ && number <= lastDay_;
    }
    int yearOf(const std::string& date) const { return clock_.toLocal(dateToNumber(date)).year; }

    std::int64_t firstDay_;
    std::int64_t lastDay_;
    const Clock& clock_;
    std::vector<Admission> admissions_;
};

} // namespace

std::vector<AdmissionEntry> collectAdmissions(const DataFolder& folder, const ClientIndex& index,
                                              std::int64_t firstDay, std::int64_t lastDay,
                                              const Clock& clock)
{
    Collector collector(firstDay, lastDay, clock);
    ClientRecord client;
    StayRecord stay;
    AccountBook book;
    for (int entry = 1; entry <= index.usedCount(); ++entry) {
        const std::string code = index.entries[entry].code.str();
        if (!isSafeClientCode(code) || !readClientRecord(folder, code, client))
            continue;
        readStayRecord(folder, code, stay);
        readAccountBook(folder, code, book);
        collector.addClient(client, stay, book);
    }
    return collector.entries();
}

} // namespace purrlodge
