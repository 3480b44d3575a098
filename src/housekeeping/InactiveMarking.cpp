#include "housekeeping/InactiveMarking.h"

#include "housekeeping/CurrentClients.h"
#include "store/ClientFiles.h"
#include "store/Dates.h"

namespace purrlodge {

std::int64_t cutOffDay(std::string_view typed)
{
    return dateToNumber(typed.substr(0, cutOffDateLength));
}

InactiveMarking markInactive(const DataFolder& folder, const ClientIndex& index,
                             std::int64_t cutOff)
{
    InactiveMarking result;
    forEachCurrentClient(folder, index, [&](const std::string& code, const ClientRecord& read) {
        ClientRecord client = read;
        const bool inactive = dateToNumber(client.lastOutDate.str()) < cutOff;
        client.inactive.set(inactive ? 1 : 0);
        if (!writeClientRecord(folder, code, client)) {
            result.complete = false;
            return false;
        }
        ++result.examined;
        if (inactive)
            ++result.marked;
        return true;
    });
    return result;
}

std::string inactiveMarkingText(const InactiveMarking& result)
{
    return std::to_string(result.examined) + " Clients examined\n" + std::to_string(result.marked) +
           " Client Marked as Inactive";
}

} // namespace purrlodge
