// Bytes as a client record ("<code>.DAT") in a data folder whose index names
// it: the reader, both details listings, the vaccination status, the global
// search, the other-cats listings, and the client form opened on the record
// and pressed OK as it stands and with its cats changed.

#include <cstddef>
#include <cstdint>
#include <string>

#include "clients/ClientDetails.h"
#include "clients/ClientFormRules.h"
#include "clients/GlobalSearch.h"
#include "clients/OtherCatsList.h"
#include "fuzz/FuzzSupport.h"
#include "store/ClientFiles.h"
#include "store/DataFolder.h"
#include "store/IndexOperations.h"
#include "store/RandomDraw.h"
#include "support/FakePorts.h"
#include "support/FakeQuestions.h"

namespace {

using namespace purrlodge;

constexpr std::string_view code = "SMITHANN";
constexpr int currentYear = 2024;

void search(const DataFolder& folder, const ClientIndex& index, std::string text, bool caseSpecific)
{
    static_cast<void>(
        globalSearch(folder, index, {std::move(text), caseSpecific, GlobalSearchGroups::all()}));
}

// OK pressed on the form, the questions answered one way or the other.
void pressOk(const ClientForm& form, const DataFolder& folder, ClientIndex& index,
             ClientRecord& client, RandomDraw& draw, const testing::FakeClock& clock,
             testing::FakeUi& ui, bool agreeable)
{
    testing::ScriptedClientQuestions questions;
    questions.surnameYes = agreeable;
    questions.continueAfterWarning = agreeable;
    if (agreeable)
        questions.leaving = LeavingCatAnswer{LeavingReason::NewHome, "Went to her sister"};
    questions.nameChoice = agreeable ? CatNameChoice::NewCat : CatNameChoice::NameChanged;
    std::string clientCode(code);
    static_cast<void>(acceptClientForm(
        form, {folder, index, client, clientCode, draw, clock, ui, currentYear}, questions));
}

} // namespace

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size)
{
    static fuzzing::FuzzFolder temp;
    temp.reset();
    temp.put(std::string(code) + ".DAT", {reinterpret_cast<const char*>(data), size});

    testing::FakeUi ui;
    testing::FakeClock clock;
    clock.setUtc(currentYear, 6, 15);
    testing::FakeRandom random;
    RandomDraw draw(random, clock);
    DataFolder folder(temp.path(), ui);

    ClientIndex index{};
    appendEntry(index, "Smith", code);
    static_cast<void>(writeIndex(folder, index));

    ClientRecord client;
    readClientRecord(folder, code, client);

    static_cast<void>(clientDetailsListing(folder, client, code, currentYear, clock));
    static_cast<void>(pastClientDetailsListing(client, code, currentYear, clock));
    static_cast<void>(vaccinationCertificateStatus(client, "3", clock.now()));
    static_cast<void>(vaccinationCertificateStatus(client, client.reservedText1[0].str(), 0));
    static_cast<void>(otherCatsListing(folder, code, client, OtherCatsMode::EarlierSpecialNotes));
    static_cast<void>(otherCatsListing(folder, code, client, OtherCatsMode::NoteBook));

    // Search for what the record holds, in both case modes.
    search(folder, index, client.catName[0].str(), true);
    search(folder, index, client.surname.str().substr(0, 4), false);
    search(folder, index, client.telephone.str(), false);

    // The form as it opens, pressed OK unchanged; then with the first cat gone
    // and the second renamed, so the leaving-cat questions and the other-cats
    // list are reached with the record's own birth years.
    const ClientForm form = clientFormFrom(client, clock);
    ClientRecord current = client;
    pressOk(form, folder, index, current, draw, clock, ui, true);
    ClientForm changed = form;
    changed.cats[0].name.clear();
    changed.cats[1].name = "Newcomer";
    changed.surname = "Smithson";
    current = client;
    pressOk(changed, folder, index, current, draw, clock, ui, true);
    current = client;
    pressOk(changed, folder, index, current, draw, clock, ui, false);

    // What the saves left behind reads back as any other client.
    readClientRecord(folder, code, client);
    static_cast<void>(clientDetailsListing(folder, client, code, currentYear, clock));
    static_cast<void>(
        otherCatsListing(folder, client.code.str(), client, OtherCatsMode::EarlierSpecialNotes));
    return 0;
}
