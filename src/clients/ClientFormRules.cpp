#include "clients/ClientFormRules.h"

#include <cstdint>
#include <vector>

#include "clients/CatNameChange.h"
#include "clients/ClientFormQuestions.h"
#include "clients/LeavingCat.h"
#include "ports/Clock.h"
#include "ports/Ui.h"
#include "store/CatSlots.h"
#include "store/ClientFields.h"
#include "store/ClientFiles.h"
#include "store/Dates.h"
#include "store/IndexOperations.h"
#include "store/TextHelpers.h"

namespace purrlodge {

namespace {

constexpr std::string_view redNotePrefix = "#R# ";
constexpr std::string_view chipInsuranceCharacters = "ci+- /";
constexpr std::string_view sexLetters = "MmFf";
constexpr std::size_t stayDateLength = 12;
constexpr int improbableBirthYearSpan = 25;
constexpr std::string_view dateWarningTitle = "Apparent Date Error";

// The text after the red marker: after "#R# " as the program writes it, or
// after a bare "#R#" typed by hand.
std::string withoutRedMarker(std::string_view text)
{
    if (contains(text, redNotePrefix))
        return textAfter(text, redNotePrefix);
    return textAfter(text, redNoteMarker);
}

// The sex box shows nothing for an unstated sex.
std::string sexEntry(std::int32_t code)
{
    return code > 0 ? std::string(1, sexLetter(code)) : std::string();
}

std::string chipInsuranceText(int chip, int insurance)
{
    std::string text;
    if (chip == 2)
        text += "C+";
    else if (chip == 1)
        text += "C-";
    if (insurance == 2)
        text += "I+";
    else if (insurance == 1)
        text += "I-";
    return text;
}

std::string lastVaccinationEntry(std::int32_t serial, const Clock& clock)
{
    return serial > 0 ? monthAndYearText(serial, clock) : std::string();
}

// 2 for "x+", 1 for "x-", 0 when neither is given.
int stateOf(std::string_view text, char letter)
{
    if (contains(text, std::string{letter, '+'}))
        return 2;
    if (contains(text, std::string{letter, '-'}))
        return 1;
    return 0;
}

int sexCode(std::string_view sex)
{
    if (contains(sex, "M"))
        return 1;
    if (contains(sex, "F"))
        return 2;
    if (contains(sex, "m"))
        return 3;
    if (contains(sex, "f"))
        return 4;
    return 0;
}

Message clientListFullMessage()
{
    return {"The client list is full: it holds " + std::to_string(maxClients) +
                " clients.\nUse Tasks | Delete Client to remove a client or transfer one to the "
                "'Hidden Clients' list before registering a new client.",
            "Client List Full", MessageIcon::Exclamation};
}

// One press of OK: the checks in their fixed order over a copy of the client
// record, which replaces the current client only when the save goes through.
class ClientFormOk {
public:
    ClientFormOk(const ClientForm& form, const ClientFormContext& context,
                 ClientFormQuestions& questions)
        : context_(context), form_(form), questions_(questions),
          editing_(form.mode == ClientFormMode::EditClient)
    {
        if (editing_) {
            draft_ = context.client;
            // A record that names another code (or the same in other case)
            // is put right: its files are the ones the index names.
            draft_.code.set(context.clientCode);
        } else
            clearClientRecord(draft_);
    }

    FormVerdict run()
    {
        if (!editing_ && !roomForNewClient())
            return FormVerdict::StayOpen;
        if (!checkKnownGiven() || !checkFirstName() || !checkSurname())
            return FormVerdict::StayOpen;
        draft_.mobile.set(storedMobileNumber(form_.mobile));
        if (!takeSurname())
            return FormVerdict::StayOpen;
        draft_.style.set(form_.style);
        draft_.firstName.set(form_.firstName);
        for (int slot = 0; slot < catSlotCount; ++slot) {
            if (!takeCatRow(slot))
                return FormVerdict::StayOpen;
        }
        compactCats(draft_);
        takeAddressNotesAndFoods();
        draft_.telephone.set(form_.telephone);
        draft_.vet.set(form_.vet);
        draft_.lastInDate.set(std::string_view(form_.lastIn).substr(0, stayDateLength));
        draft_.lastOutDate.set(std::string_view(form_.lastOut).substr(0, stayDateLength));
        if (!takeKnown())
            return FormVerdict::StayOpen;
        draft_.email.set(form_.email);
        return save();
    }

private:
    struct Departure {
        DepartingCat cat;
        LeavingCatAnswer answer;
    };

    bool fail(Message message)
    {
        context_.ui.showMessage(message);
        return false;
    }

    bool roomForNewClient()
    {
        if (const auto refusal = newClientRefusal(context_.index))
            return fail(*refusal);
        return true;
    }

    bool checkKnownGiven()
    {
        if (editing_)
            return true;
        if (!hasLetterOrDigit(form_.known))
            return fail({"please enter a value for 'known' eg 1 if not known", "Missing Value",
                         MessageIcon::None});
        const CivilTime today = context_.clock.toLocal(context_.clock.now());
        draft_.firstRegistered.set(static_cast<std::int32_t>(
            dateToNumber(formatDateText(today.day, today.month, today.year % 100))));
        draft_.inactive.set(0);
        return true;
    }

    bool checkFirstName()
    {
        if (hasLetterOrDigit(form_.firstName))
            return true;
        return fail({"You must provide a First Name!\nIf not known insert 'unknown'",
                     "Missing name", MessageIcon::None});
    }

    bool checkSurname()
    {
        const std::string& surname = form_.surname;
        // The message says "more than 3" but three letters pass: both as they always were.
        if (surname.size() < 3)
            return fail({"Surname must be more than 3 letters!", "Name Error", MessageIcon::None});
        if (surname.front() < 'A' || surname.front() > 'Z')
            return fail(
                {"Surname must start with an Upper Case letter", "Name error", MessageIcon::None});
        const int illegal = firstNotInSet(surname, permittedNameCharacterSet);
        if (illegal >= 0)
            return fail({"The Surname contains an illegal character viz: '" +
                             std::string(1, surname[static_cast<std::size_t>(illegal)]) + "'",
                         "Illegal Character", MessageIcon::Exclamation});
        return true;
    }

    // A confirmed change of surname is saved at once, under the unchanged
    // code, with the index entry's key; false when a write failed.
    bool takeSurname()
    {
        if (!editing_) {
            draft_.surname.set(form_.surname);
            return true;
        }
        const ClientRecord& stored = context_.client;
        if (form_.surname == stored.surname.str() || !questions_.confirmSurnameChange())
            return true;
        ClientRecord renamed = stored;
        renamed.code = draft_.code;
        renamed.surname.set(form_.surname);
        if (!writeClientRecord(context_.folder, context_.clientCode, renamed))
            return false;
        context_.client = renamed;
        draft_.surname = renamed.surname;
        return writeIndexKey(renamed);
    }

    // The index entry's key follows the client's surname; the index in memory
    // changes only when the file was written.
    bool writeIndexKey(const ClientRecord& client)
    {
        const int entry = findCode(context_.index, context_.clientCode);
        if (entry <= 0 || context_.index.entries[entry].key.str() == client.surname.str())
            return true;
        ClientIndex updated = context_.index;
        updated.entries[entry].key = client.surname;
        if (!writeIndex(context_.folder, updated))
            return false;
        context_.index = updated;
        return true;
    }

    // DIALOG 50 for the cat stored in the slot; false when it is cancelled.
    bool askAboutLeavingCat(int slot)
    {
        const DepartingCat cat = departingCatOf(context_.client, slot);
        const auto answer = questions_.askWhyCatLeft(cat.name);
        if (!answer)
            return false;
        departures_.push_back({cat, *answer});
        return true;
    }

    bool takeCatRow(int slot)
    {
        const CatRowEntries& row = form_.cats[static_cast<std::size_t>(slot)];
        const std::string storedName = context_.client.catName[slot].str();
        const bool storedCat = editing_ && isCatSlotUsed(context_.client, slot);

        if (storedCat && !hasLetterOrDigit(row.name)) {
            if (!askAboutLeavingCat(slot))
                return false;
            draft_.catName[slot].clear();
            return true;
        }
        if (storedCat && isCatNameChange(storedName, row.name) &&
            questions_.askCatNameChange(storedName, row.name) == CatNameChoice::NewCat) {
            if (!askAboutLeavingCat(slot))
                return false;
            forgetReplacedCat(draft_, slot);
        }

        draft_.catName[slot].set(row.name);
        draft_.catBreed[slot].set(row.breed);
        draft_.catColour[slot].set(row.colour);
        return takeBirthYear(slot, row) && takeChipAndInsurance(slot, row) && takeSex(slot, row) &&
               takeLastVaccination(slot, row);
    }

    bool takeBirthYear(int slot, const CatRowEntries& row)
    {
        const int year = leadingInt(row.birthYear);
        const int now = context_.currentYear;
        if (year != 0 &&
            (year < now - improbableBirthYearSpan || year > now + improbableBirthYearSpan)) {
            const DateWarning warning{std::string(dateWarningTitle), DateBirthSuspicious,
                                      "Date of Birth seems improbable",
                                      row.name + ": " + std::to_string(year)};
            if (!questions_.continueDespiteBirthYear(warning))
                return false;
        }
        draft_.catBirthYear[slot].set(year);
        return true;
    }

    bool takeChipAndInsurance(int slot, const CatRowEntries& row)
    {
        const std::string text = toLower(row.chipInsurance);
        if (!onlyCharactersOf(text, chipInsuranceCharacters))
            return fail({"The Chipped/Insurance contains an illegal character", "Entry Error",
                         MessageIcon::Exclamation});
        draft_.catMicrochip[slot].set(stateOf(text, 'c'));
        draft_.catInsurance[slot].set(stateOf(text, 'i'));
        return true;
    }

    bool takeSex(int slot, const CatRowEntries& row)
    {
        const std::string& sex = row.sex;
        if (sex.size() > 1 || (sex.size() == 1 && !contains(sexLetters, sex)))
            return fail({"Illegal character in Sex box", "Entry Error", MessageIcon::Exclamation});
        draft_.catSex[slot].set(sexCode(sex));
        return true;
    }

    // Month/two-figure year, stored as the date number of the month's first day.
    // The message's "dd/mm" is how the program has always worded it.
    bool takeLastVaccination(int slot, const CatRowEntries& row)
    {
        const std::string& text = row.lastVaccination;
        if (!hasLetterOrDigit(text)) {
            draft_.catLastVaccination[slot].set(0);
            return true;
        }
        if (!contains(text, "/"))
            return fail({"Last Vac-Date seems in incorrect format - should be dd/mm, '/' is "
                         "missing!",
                         "Date Error", MessageIcon::Exclamation});
        const int month = leadingInt(textBefore(text, "/"));
        const int year = leadingInt(textAfter(text, "/"));
        if (year > 99)
            return fail(
                {"Date-year should be just two figures eg:  04", "Date Error", MessageIcon::None});

        std::string date = formatDateText(1, month, year);
        // A state of its own, so the arrival and departure the stay checks
        // compare are not disturbed by a vaccination date.
        DateEntryState vaccination{DateKind::LastVaccination, 0, 0};
        const int code = validateDate(date, false, context_.currentYear, vaccination);
        if (code >= DateYearWrong && code <= DateDepartureBeforeArrival) {
            questions_.showDateWarning({std::string(dateWarningTitle), code,
                                        std::string(dateErrorMessage(code)),
                                        std::string(dateKindLabel(DateKind::LastVaccination))});
            return false;
        }
        draft_.catLastVaccination[slot].set(static_cast<std::int32_t>(dateToNumber(date)));
        return true;
    }

    void takeAddressNotesAndFoods()
    {
        for (std::size_t line = 0; line < form_.address.size(); ++line)
            draft_.address[line].set(form_.address[line]);
        for (std::size_t line = 0; line < form_.notes.size(); ++line)
            draft_.notes[line].set(storedNoteLine(form_.notes[line], form_.redNote[line]));
        // The form shows the foods of the first cat slot only.
        for (std::size_t food = 0; food < foodsPerCat; ++food) {
            draft_.favouriteFoods[0][food].set(form_.favouriteFoods[food]);
            draft_.forbiddenFoods[0][food].set(form_.forbiddenFoods[food]);
        }
    }

    bool takeKnown()
    {
        const int known = hasLetterOrDigit(form_.known) ? leadingInt(form_.known) : 0;
        if (known < 0 || known > 10)
            return fail({"'Known' values must be between 0 and 10", "Known Value Error",
                         MessageIcon::None});
        draft_.knownRating.set(known);
        return true;
    }

    FormVerdict save()
    {
        if (editing_) {
            // The departures first: should the save stop half-way, a cat is
            // listed twice rather than lost.
            const CivilTime today = context_.clock.toLocal(context_.clock.now());
            for (const Departure& departure : departures_) {
                if (!moveCatToOtherCats(context_.folder, context_.ui, today, context_.currentYear,
                                        draft_, departure.cat, departure.answer))
                    return FormVerdict::StayOpen;
            }
            if (!writeClientRecord(context_.folder, context_.clientCode, draft_) ||
                !writeIndexKey(draft_))
                return FormVerdict::StayOpen;
            context_.client = draft_;
            return FormVerdict::Accept;
        }
        switch (addNewClient(context_.folder, context_.index, draft_, context_.draw)) {
        case AddClientResult::IndexFull:
            fail(clientListFullMessage());
            return FormVerdict::StayOpen;
        case AddClientResult::NoCodeFree:
            fail({"No unused client code could be made for " + form_.firstName + " " +
                      form_.surname + ".\nPlease check the client list.",
                  "Client Code Error", MessageIcon::Exclamation});
            return FormVerdict::StayOpen;
        case AddClientResult::WriteFailed:
            return FormVerdict::StayOpen; // the file error has been told
        case AddClientResult::Added:
            break;
        }
        context_.client = draft_;
        context_.clientCode = draft_.code.str();
        return FormVerdict::Accept;
    }

    const ClientFormContext& context_;
    const ClientForm& form_;
    ClientFormQuestions& questions_;
    const bool editing_;
    ClientRecord draft_{};
    std::vector<Departure> departures_;
};

} // namespace

ClientForm newClientForm()
{
    return ClientForm{};
}

ClientForm clientFormFrom(const ClientRecord& client, const Clock& clock)
{
    ClientForm form;
    form.mode = ClientFormMode::EditClient;
    form.style = client.style.str();
    form.firstName = client.firstName.str();
    form.surname = client.surname.str();
    for (std::size_t line = 0; line < form.address.size(); ++line)
        form.address[line] = client.address[line].str();
    form.telephone = client.telephone.str();
    // The record keeps the number with a "::" tail that every reader cuts off.
    form.mobile = mobileNumberOf(client);
    form.vet = client.vet.str();
    form.email = client.email.str();
    for (std::size_t line = 0; line < form.notes.size(); ++line) {
        const std::string note = client.notes[line].str();
        form.redNote[line] = contains(note, redNoteMarker);
        form.notes[line] = form.redNote[line] ? withoutRedMarker(note) : note;
    }
    for (std::size_t food = 0; food < foodsPerCat; ++food) {
        form.favouriteFoods[food] = client.favouriteFoods[0][food].str();
        form.forbiddenFoods[food] = client.forbiddenFoods[0][food].str();
    }
    form.known = std::to_string(client.knownRating.get());
    form.lastIn = client.lastInDate.str();
    form.lastOut = client.lastOutDate.str();
    for (int slot = 0; slot < catSlotCount; ++slot) {
        if (!isCatSlotUsed(client, slot))
            continue;
        CatRowEntries& row = form.cats[static_cast<std::size_t>(slot)];
        row.name = client.catName[slot].str();
        row.breed = client.catBreed[slot].str();
        row.colour = client.catColour[slot].str();
        const int year = client.catBirthYear[slot].get();
        row.birthYear = year != 0 ? std::to_string(year) : std::string();
        row.sex = sexEntry(client.catSex[slot].get());
        row.chipInsurance =
            chipInsuranceText(client.catMicrochip[slot].get(), client.catInsurance[slot].get());
        row.lastVaccination = lastVaccinationEntry(client.catLastVaccination[slot].get(), clock);
    }
    return form;
}

std::string storedNoteLine(std::string_view typed, bool red)
{
    const bool marked = contains(typed, redNoteMarker);
    if (red && !marked)
        return std::string(redNotePrefix) + std::string(typed);
    if (!red && marked)
        return withoutRedMarker(typed);
    return std::string(typed);
}

std::optional<Message> newClientRefusal(const ClientIndex& index)
{
    if (index.usedCount() < maxClients)
        return std::nullopt;
    return clientListFullMessage();
}

FormVerdict acceptClientForm(const ClientForm& form, const ClientFormContext& context,
                             ClientFormQuestions& questions)
{
    return ClientFormOk(form, context, questions).run();
}

} // namespace purrlodge
