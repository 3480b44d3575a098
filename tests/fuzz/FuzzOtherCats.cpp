// Bytes as a client's other files: a two-byte little-endian length n, then
// the other cats (".XC2", 3774 bytes), the auto memo (".ANT", 1001 bytes),
// n bytes of earlier cats' special notes (".XCT", 292-byte records) and the
// rest as the note book (".NTS", text lines). A file the input does not reach
// is missing. They are read by the details listing, both other-cats listings,
// the global search (auto memo) and by filing a leaving cat.

#include <cstddef>
#include <cstdint>
#include <string>

#include "clients/AutoMemo.h"
#include "clients/ClientDetails.h"
#include "clients/GlobalSearch.h"
#include "clients/LeavingCat.h"
#include "clients/OtherCatsFile.h"
#include "clients/OtherCatsList.h"
#include "fuzz/FuzzSupport.h"
#include "store/ClientFiles.h"
#include "store/DataFolder.h"
#include "store/IndexOperations.h"
#include "support/FakePorts.h"

namespace {

using namespace purrlodge;

constexpr std::string_view code = "SMITHANN";

ClientRecord annSmith()
{
    ClientRecord client{};
    client.code.set(code);
    client.firstName.set("Anne");
    client.surname.set("Smith");
    client.catName[0].set("Tigger");
    client.catBirthYear[0].set(2010);
    return client;
}

} // namespace

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size)
{
    static fuzzing::FuzzFolder temp;
    temp.reset();
    fuzzing::Pieces pieces(data, size);
    const std::size_t earlierCatsLength = pieces.takeLength();
    const std::string name(code);
    temp.put(name + ".XC2", pieces.take(sizeof(OtherCatsFile)));
    temp.put(name + ".ANT", pieces.take(1001));
    temp.put(name + ".XCT", pieces.take(earlierCatsLength));
    temp.put(name + ".NTS", pieces.rest());

    testing::FakeUi ui;
    testing::FakeClock clock;
    clock.setUtc(2024, 6, 15);
    DataFolder folder(temp.path(), ui);
    const ClientRecord client = annSmith();
    ClientIndex index{};
    appendEntry(index, "Smith", code);
    static_cast<void>(writeClientRecord(folder, code, client));

    static_cast<void>(clientDetailsListing(folder, client, code, 2024, clock));
    static_cast<void>(otherCatsListing(folder, code, client, OtherCatsMode::EarlierSpecialNotes));
    static_cast<void>(otherCatsListing(folder, code, client, OtherCatsMode::NoteBook));

    // The memo is searched for what it holds, in both case modes.
    AutoMemo memo;
    folder.read(clientFileName(code, extension::autoMemo), memo);
    GlobalSearchGroups notes;
    notes.notesAutoMemo = true;
    for (const bool caseSpecific : {true, false})
        static_cast<void>(
            globalSearch(folder, index, {memo.text.str().substr(0, 4), caseSpecific, notes}));

    // A leaving cat pushes the oldest record out; the last one read is filed
    // again, and the list is read once more.
    OtherCatsFile others;
    folder.read(clientFileName(code, extension::otherCats), others);
    static_cast<void>(appendOtherCat(folder, code, others.cats[otherCatsKept - 1]));
    static_cast<void>(moveCatToOtherCats(folder, ui, clock.toLocal(clock.now()), 2024, client,
                                         departingCatOf(client, 0),
                                         {LeavingReason::Death, others.cats[0].notes.str()}));
    static_cast<void>(otherCatsListing(folder, code, client, OtherCatsMode::EarlierSpecialNotes));
    return 0;
}
