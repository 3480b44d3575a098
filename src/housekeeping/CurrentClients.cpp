#include "housekeeping/CurrentClients.h"

#include "store/ClientCode.h"
#include "store/ClientFiles.h"

namespace purrlodge {

int forEachCurrentClient(const DataFolder& folder, const ClientIndex& index,
                         const ClientVisit& visit)
{
    int visited = 0;
    ClientRecord client;
    for (int entry = 1; entry <= index.usedCount(); ++entry) {
        const std::string code = index.entries[entry].code.str();
        if (!isSafeClientCode(code) || !readClientRecord(folder, code, client))
            continue;
        ++visited;
        if (!visit(code, client))
            break;
    }
    return visited;
}

} // namespace purrlodge
