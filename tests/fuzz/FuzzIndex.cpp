// Bytes as the client index (FIDEX.CTL) and as the past-client index
// (OFIDEX.CTL): the readers, start-up's repair, the index operations, list-line look-ups, the
// receipt-number offer, a new client's registration and the finder over what
// was read (people by the first entry's surname, cats by a name that one
// record written under the first entry's code holds).

#include <algorithm>
#include <cstddef>
#include <cstdint>
#include <string>
#include <vector>

#include "accounts/ReceiptNumberSetup.h"
#include "clients/ClientFinder.h"
#include "clients/ClientFormRules.h"
#include "fuzz/FuzzSupport.h"
#include "store/ClientFiles.h"
#include "store/DataFolder.h"
#include "store/IndexOperations.h"
#include "store/IndexRepair.h"
#include "store/RandomDraw.h"
#include "store/TextHelpers.h"
#include "support/FakePorts.h"

namespace {

using namespace purrlodge;

// Entries to look up: the first, one in the middle, the last used and the
// one after it.
std::vector<int> probedEntries(const ClientIndex& index)
{
    const int count = index.usedCount();
    return {1, (count + 1) / 2, count, count + 1};
}

void useIndex(const DataFolder& folder, ClientIndex& index, const ClientIndex& other)
{
    sortIndexEntries(index);
    for (const int entry : probedEntries(index)) {
        const std::string code = index.entries[std::clamp(entry, 0, maxClients)].code.str();
        static_cast<void>(findCode(index, code));
        static_cast<void>(findCode(other, toLower(code)));
        static_cast<void>(codeOfListLine(code + "\tSmith\tAnne", index));
        static_cast<void>(codeOfListLine(toLower(code), index));
    }
    static_cast<void>(newClientRefusal(index));
    static_cast<void>(receiptNumberOffer(index));

    // A removal named by the header, and the edges either side of the entries.
    const int count = index.usedCount();
    removeEntry(index, index.lastAccountNumber.get());
    removeEntry(index, 0);
    removeEntry(index, count + 1);
    appendEntry(index, index.entries[1].key.str(), index.entries[1].code.str());
    appendEntry(index, "Zebedee", "ZEBEDEE1");

    const std::string key = index.entries[1].key.str();
    bool diagnostics = false;
    static_cast<void>(checkFinderName(key, false, diagnostics));
    static_cast<void>(findClients(folder, index, FinderSearch::Person, key.substr(0, 3)));
    static_cast<void>(findClients(folder, index, FinderSearch::Person, key));
}

} // namespace

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size)
{
    static fuzzing::FuzzFolder temp;
    temp.reset();
    const std::string_view bytes(reinterpret_cast<const char*>(data), size);
    temp.put(currentIndexFile, bytes);
    temp.put(pastIndexFile, bytes);

    testing::FakeUi ui;
    testing::FakeClock clock(1'700'000'000);
    testing::FakeRandom random;
    RandomDraw draw(random, clock);
    DataFolder folder(temp.path(), ui);

    ClientIndex index;
    ClientIndex past;
    readIndex(folder, index);
    readPastIndex(folder, past);

    // Start-up's repair: afterwards the count and the entries agree, and a
    // second check finds nothing more.
    const IndexRepair repair = repairIndex(index, size);
    static_cast<void>(unsafeCodeEntries(index));
    if (repair.repaired()) {
        if (index.count.get() != repair.kept || index.count.get() < 0 ||
            index.count.get() > maxClients)
            __builtin_trap();
        for (int entry = 1; entry <= index.usedCount(); ++entry) {
            if (index.entries[entry].code.str().empty())
                __builtin_trap();
        }
    }
    if (repairIndex(index, sizeof(ClientIndex)).repaired())
        __builtin_trap();

    // One client record under the first entry's code, with cats to find.
    ClientRecord client{};
    client.surname.set(index.entries[1].key.str());
    client.catName[0].set("Tigger");
    client.catName[1].set("Pig");
    static_cast<void>(writeClientRecord(folder, index.entries[1].code.str(), client));

    useIndex(folder, index, past);
    useIndex(folder, past, index);
    // The cat search reads every client the index names; it finds the one above.
    static_cast<void>(findClients(folder, index, FinderSearch::Cat, "ig"));

    // A new client is checked against both indexes, written and indexed. That
    // sorts once more; each sort of a full, unsorted index is slow (bubble sort).
    ClientRecord newcomer{};
    newcomer.surname.set(index.entries[1].key.str());
    newcomer.firstName.set("Anne");
    static_cast<void>(addNewClient(folder, index, newcomer, draw));
    static_cast<void>(acceptReceiptNumber(index.entries[1].code.str(), index, folder));
    return 0;
}
