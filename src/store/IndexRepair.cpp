#include "store/IndexRepair.h"

#include <set>
#include <string_view>

#include "store/ClientCode.h"

namespace purrlodge {

namespace {

std::string entryName(const ClientIndex& index, int entry)
{
    return "entry " + std::to_string(entry) + " (" + index.entries[entry].key.str() + ")";
}

} // namespace

bool isKnownIndexFormat(const ClientIndex& index)
{
    const std::int32_t stamp = index.formatStamp.get();
    return stamp == currentFormatStamp || stamp == 0;
}

IndexRepair repairIndex(ClientIndex& index, std::uintmax_t fileSize)
{
    IndexRepair repair;
    if (fileSize < sizeof(ClientIndex))
        repair.findings.push_back("the file is cut short: " + std::to_string(fileSize) + " of " +
                                  std::to_string(sizeof(ClientIndex)) + " bytes");
    else if (fileSize > sizeof(ClientIndex))
        repair.findings.push_back("the file is " + std::to_string(fileSize) +
                                  " bytes long instead of " + std::to_string(sizeof(ClientIndex)));

    const std::int32_t stored = index.count.get();
    const bool countImpossible = stored < 0 || stored > maxClients;
    if (stored < 0)
        repair.findings.push_back("the number of clients was " + std::to_string(stored));
    else if (stored > maxClients)
        repair.findings.push_back("the number of clients was " + std::to_string(stored) +
                                  ", more than the " + std::to_string(maxClients) +
                                  " the list can hold");
    const int last = countImpossible ? maxClients : static_cast<int>(stored);

    std::vector<IndexEntry> kept;
    std::set<std::string, std::less<>> codes;
    int blanks = 0;
    for (int entry = 1; entry <= last; ++entry) {
        const std::string code = index.entries[entry].code.str();
        if (code.empty()) {
            ++blanks;
        } else if (!codes.insert(code).second) {
            repair.findings.push_back(entryName(index, entry) + " repeats the code \"" + code +
                                      "\" of an earlier entry");
        } else {
            kept.push_back(index.entries[entry]);
        }
    }
    // Past an impossible count every empty entry is simply unused.
    if (blanks > 0 && !countImpossible)
        repair.findings.push_back(std::to_string(blanks) + " of the " + std::to_string(stored) +
                                  " entries named no client");

    repair.kept = static_cast<int>(kept.size());
    if (!repair.repaired())
        return repair;
    for (int entry = 1; entry < indexEntryCount; ++entry) {
        const auto at = static_cast<std::size_t>(entry - 1);
        index.entries[entry] = at < kept.size() ? kept[at] : IndexEntry{};
    }
    index.count.set(repair.kept);
    return repair;
}

std::vector<std::string> unsafeCodeEntries(const ClientIndex& index)
{
    std::vector<std::string> found;
    for (int entry = 1; entry <= index.usedCount(); ++entry) {
        const std::string code = index.entries[entry].code.str();
        if (!isSafeClientCode(code))
            found.push_back(entryName(index, entry) + ": \"" + code + "\"");
    }
    return found;
}

} // namespace purrlodge
