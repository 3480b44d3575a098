#include "store/ClientFiles.h"

#include "store/ClientCode.h"
#include "store/DataFolder.h"
#include "store/IndexOperations.h"
#include "store/IndexRepair.h"
#include "store/RandomDraw.h"
#include "store/TextHelpers.h"

namespace purrlodge {

std::string clientFileName(std::string_view code, std::string_view extension)
{
    return std::string(code) + std::string(extension);
}

bool readClientRecord(const DataFolder& folder, std::string_view code, ClientRecord& client)
{
    return folder.read(clientFileName(code, extension::clientRecord), client);
}

bool writeClientRecord(const DataFolder& folder, std::string_view code, const ClientRecord& client)
{
    return folder.write(clientFileName(code, extension::clientRecord), client);
}

bool readStayRecord(const DataFolder& folder, std::string_view code, StayRecord& stay)
{
    return folder.read(clientFileName(code, extension::stayRecord), stay);
}

bool writeStayRecord(const DataFolder& folder, std::string_view code, const StayRecord& stay)
{
    return folder.write(clientFileName(code, extension::stayRecord), stay);
}

bool readIndex(const DataFolder& folder, ClientIndex& index)
{
    return folder.read(currentIndexFile, index);
}

bool writeIndex(const DataFolder& folder, const ClientIndex& index)
{
    return folder.write(currentIndexFile, index);
}

bool readStoredPastIndex(const DataFolder& folder, ClientIndex& past)
{
    const bool opened = folder.read(pastIndexFile, past);
    if (past.count.get() == -1)
        past.count.set(0);
    return opened;
}

bool readPastIndex(const DataFolder& folder, ClientIndex& past)
{
    const bool opened = readStoredPastIndex(folder, past);
    // Start-up has told the person of any damage; here it is only put right.
    if (opened)
        static_cast<void>(
            repairIndex(past, folder.fileSize(pastIndexFile).value_or(sizeof(ClientIndex))));
    return opened;
}

bool sortAndWritePastIndex(const DataFolder& folder, ClientIndex& past)
{
    sortIndexEntries(past);
    return folder.write(pastIndexFile, past);
}

AddClientResult addNewClient(const DataFolder& folder, ClientIndex& index, ClientRecord& client,
                             RandomDraw& draw)
{
    if (index.usedCount() >= maxClients)
        return AddClientResult::IndexFull;

    // Past clients keep their files under their codes, so their codes are
    // taken too.
    ClientIndex past;
    readPastIndex(folder, past);
    const std::string code = makeClientCode(
        client.surname.str(), client.firstName.str(), draw, [&](std::string_view candidate) {
            return findCode(index, candidate) > 0 || findCode(past, candidate) > 0;
        });
    if (code.empty())
        return AddClientResult::NoCodeFree;

    ClientRecord record = client;
    record.code.set(code);
    if (!writeClientRecord(folder, code, record))
        return AddClientResult::WriteFailed;
    ClientIndex updated = index;
    appendEntry(updated, record.surname.str(), code);
    sortIndexEntries(updated);
    if (!writeIndex(folder, updated)) {
        // No entry names the record: take it away again, so the folder is as it was.
        folder.remove(clientFileName(code, extension::clientRecord));
        return AddClientResult::WriteFailed;
    }
    index = updated;
    client = record;
    return AddClientResult::Added;
}

std::string codeOfListLine(std::string_view line, const ClientIndex& index)
{
    const std::string code = toUpper(textBefore(line, "\t"));
    const int entry = findCode(index, code);
    return entry > 0 ? index.entries[entry].code.str() : code;
}

bool readClientOfListLine(const DataFolder& folder, const ClientIndex& index, std::string_view line,
                          ClientRecord& client)
{
    return readClientRecord(folder, codeOfListLine(line, index), client);
}

} // namespace purrlodge
