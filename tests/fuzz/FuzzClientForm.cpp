// Bytes as what is typed into the client form, one entry a line: first a line
// of answers, then style, first name, surname, four address lines, telephone,
// mobile, vet, e-mail, four notes, three favourite and three forbidden foods,
// known, last in and last out, and then for each of six cats its name, breed,
// colour, year of birth, sex, chip and insurance, and last vaccination.
// OK is pressed for a new client and for an edit of a client with three cats,
// in a data folder that holds that client.
//
// The answers line: each of its first four characters that is odd ticks the
// "Red" box of that notes line; 'y' anywhere answers every question yes (a
// surname change, an improbable year, a leaving cat, a new cat in an old one's
// place), else no.

#include <cstddef>
#include <cstdint>
#include <string>
#include <vector>

#include "clients/ClientFormRules.h"
#include "fuzz/FuzzSupport.h"
#include "store/ClientFiles.h"
#include "store/DataFolder.h"
#include "store/IndexOperations.h"
#include "store/RandomDraw.h"
#include "support/FakePorts.h"
#include "support/FakeQuestions.h"

namespace {

using namespace purrlodge;

constexpr int currentYear = 2024;
constexpr std::size_t entriesPerCat = 7;
constexpr std::size_t clientEntries = 24;

class Entries {
public:
    explicit Entries(std::vector<std::string> lines) : lines_(std::move(lines)) {}
    std::string next() { return at_ < lines_.size() ? lines_[at_++] : std::string(); }

private:
    std::vector<std::string> lines_;
    std::size_t at_ = 0;
};

ClientForm formOf(const std::string& answers, Entries entries, ClientFormMode mode)
{
    ClientForm form;
    form.mode = mode;
    form.style = entries.next();
    form.firstName = entries.next();
    form.surname = entries.next();
    for (std::string& line : form.address)
        line = entries.next();
    form.telephone = entries.next();
    form.mobile = entries.next();
    form.vet = entries.next();
    form.email = entries.next();
    for (std::size_t line = 0; line < form.notes.size(); ++line) {
        form.notes[line] = entries.next();
        form.redNote[line] = line < answers.size() && (answers[line] & 1) != 0;
    }
    for (std::string& food : form.favouriteFoods)
        food = entries.next();
    for (std::string& food : form.forbiddenFoods)
        food = entries.next();
    form.known = entries.next();
    form.lastIn = entries.next();
    form.lastOut = entries.next();
    for (CatRowEntries& cat : form.cats)
        cat = {entries.next(), entries.next(), entries.next(), entries.next(),
               entries.next(), entries.next(), entries.next()};
    return form;
}

// Mrs Anne Smith with three cats, the second born long ago.
ClientRecord annSmith()
{
    ClientRecord client{};
    client.code.set("SMITHANN");
    client.firstName.set("Anne");
    client.surname.set("Smith");
    const char* names[] = {"Tigger", "Smudge", "Pig"};
    for (int slot = 0; slot < 3; ++slot) {
        client.catName[slot].set(names[slot]);
        client.catBirthYear[slot].set(slot == 1 ? 1900 : 2010 + slot);
        client.catSex[slot].set(slot + 1);
    }
    return client;
}

} // namespace

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size)
{
    static fuzzing::FuzzFolder temp;
    temp.reset();
    const std::vector<std::string> lines = fuzzing::linesOf(
        {reinterpret_cast<const char*>(data), size}, 1 + clientEntries + 6 * entriesPerCat);
    const std::string& answers = lines.front();
    const bool yes = answers.find('y') != std::string::npos;
    const Entries entries(std::vector<std::string>(lines.begin() + 1, lines.end()));

    testing::FakeUi ui;
    testing::FakeClock clock;
    clock.setUtc(currentYear, 6, 15);
    testing::FakeRandom random({7, 3, 9, 1});
    RandomDraw draw(random, clock);
    DataFolder folder(temp.path(), ui);

    ClientRecord stored = annSmith();
    ClientIndex index{};
    appendEntry(index, "Smith", "SMITHANN");
    static_cast<void>(writeClientRecord(folder, "SMITHANN", stored));
    static_cast<void>(writeIndex(folder, index));

    for (const ClientFormMode mode : {ClientFormMode::NewClient, ClientFormMode::EditClient}) {
        testing::ScriptedClientQuestions questions;
        questions.surnameYes = yes;
        questions.continueAfterWarning = yes;
        if (yes)
            questions.leaving = LeavingCatAnswer{LeavingReason::Lost, lines.back()};
        questions.nameChoice = yes ? CatNameChoice::NewCat : CatNameChoice::NameChanged;
        ClientRecord current = stored;
        const ClientForm form = formOf(answers, entries, mode);
        std::string code = mode == ClientFormMode::EditClient ? "SMITHANN" : "";
        static_cast<void>(acceptClientForm(
            form, {folder, index, current, code, draw, clock, ui, currentYear}, questions));
        // What was saved opens the form again.
        static_cast<void>(clientFormFrom(current, clock));
    }
    return 0;
}
