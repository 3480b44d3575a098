#include "housekeeping/ListedClients.h"

#include "housekeeping/CurrentClients.h"

namespace purrlodge {

std::vector<ListedClient> listedCurrentClients(const DataFolder& folder, const ClientIndex& index)
{
    std::vector<ListedClient> clients;
    forEachCurrentClient(folder, index,
                         [&clients](const std::string& code, const ClientRecord& client) {
                             clients.push_back({code, client});
                             return true;
                         });
    return clients;
}

} // namespace purrlodge
