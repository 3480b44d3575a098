#include "clients/PastClients.h"

#include "ports/Clock.h"
#include "ports/Ui.h"
#include "store/CatSlots.h"
#include "store/ClientCode.h"
#include "store/ClientFiles.h"
#include "store/DataFolder.h"
#include "store/Dates.h"
#include "store/IndexOperations.h"
#include "store/TextHelpers.h"

namespace purrlodge {

namespace {

// The cats of a past-client line: the first three names each with ",", then a
// "+" for every further cat.
std::string catsOfLine(const ClientRecord& client)
{
    if (!isCatSlotUsed(client, 0))
        return "(No cat) ";
    std::string cats;
    for (int slot = 0; slot < catSlotCount; ++slot) {
        if (!isCatSlotUsed(client, slot))
            continue;
        cats += slot < 3 ? client.catName[slot].str() + "," : std::string("+");
    }
    return cats;
}

std::string pastClientLine(const ClientRecord& client, const std::string& code)
{
    std::string address;
    for (const auto& line : client.address)
        if (!line.str().empty())
            address += line.str() + ",";
    return " " + client.surname.str() + " " + client.firstName.str() + "\t" + catsOfLine(client) +
           "\t" + address + "\t" + code;
}

} // namespace

std::string pastClientsCaption(const Clock& clock)
{
    const CivilTime today = clock.toLocal(clock.now());
    return formatted("Previous Client list as on %s %d/%d/%d",
                     std::string(weekdayFullName(today.weekday)).c_str(), today.day, today.month,
                     today.year);
}

std::vector<std::string> pastClientLines(const DataFolder& folder)
{
    ClientIndex past{};
    if (!readPastIndex(folder, past))
        return {"There are no Past Clients filed"};
    std::vector<std::string> lines;
    ClientRecord client;
    for (int entry = 1; entry <= past.usedCount(); ++entry) {
        const std::string code = past.entries[entry].code.str();
        if (isSafeClientCode(code))
            readClientRecord(folder, code, client);
        else
            client = ClientRecord{};
        lines.push_back(pastClientLine(client, code));
    }
    return lines;
}

std::string codeOfPastClientLine(std::string_view line)
{
    const std::size_t tab = line.rfind('\t');
    return std::string(tab == std::string_view::npos ? line : line.substr(tab + 1));
}

bool removeClientFiles(const DataFolder& folder, std::string_view code, Ui& ui)
{
    if (!isSafeClientCode(code))
        return false;
    bool allGone = true;
    for (const std::string& name : folder.namesWithStem(code)) {
        if (folder.remove(name))
            continue;
        ui.showMessage({folder.fileName(name) + " - could not be removed!", "Deletion Error"});
        allGone = false;
    }
    return allGone;
}

bool transferToPastClients(const DataFolder& folder, ClientIndex& index, int entry)
{
    if (entry < 1 || entry > index.usedCount())
        return false;
    ClientIndex past{};
    readPastIndex(folder, past);
    if (!appendEntry(past, index.entries[entry].key.str(), index.entries[entry].code.str())) {
        folder.ui().showMessage({"The list of past clients is full: no client can be moved to it.",
                                 "Past Clients", MessageIcon::Exclamation});
        return false;
    }
    if (!sortAndWritePastIndex(folder, past))
        return false;
    ClientIndex current = index;
    removeEntry(current, entry);
    if (!writeIndex(folder, current))
        return false;
    index = current;
    return true;
}

RestoreResult restorePastClient(const DataFolder& folder, ClientIndex& index, std::string_view code)
{
    ClientIndex past{};
    readPastIndex(folder, past);
    const int at = findCode(past, code);
    if (at < 1)
        return RestoreResult::NotFound;
    ClientIndex current = index;
    if (!appendEntry(current, past.entries[at].key.str(), past.entries[at].code.str()))
        return RestoreResult::ListFull;
    if (!writeIndex(folder, current))
        return RestoreResult::WriteFailed;
    index = current;
    removeEntry(past, at);
    // Should this write fail (it has been told), the client is listed in both
    // lists, and nothing is lost.
    static_cast<void>(sortAndWritePastIndex(folder, past));
    return RestoreResult::Restored;
}

PastDeletion deletePastClient(const DataFolder& folder, std::string_view code, Ui& ui)
{
    ClientIndex past{};
    readPastIndex(folder, past);
    const int at = findCode(past, code);
    if (at < 1)
        return PastDeletion::NotFound;
    removeClientFiles(folder, code, ui);
    removeEntry(past, at);
    return sortAndWritePastIndex(folder, past) ? PastDeletion::Deleted : PastDeletion::WriteFailed;
}

} // namespace purrlodge
