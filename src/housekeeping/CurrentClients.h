#pragma once

#include <functional>
#include <string>

#include "store/ClientIndex.h"
#include "store/ClientRecord.h"

namespace purrlodge {

class DataFolder;

// Called with a client's code, as the index spells it, and the record read
// under it; answers whether to go on to the next client.
using ClientVisit = std::function<bool(const std::string& code, const ClientRecord& client)>;

// Visits the current clients 1..N in index order, each record read whole
// through the data folder. A client whose code is not a safe file name, or
// whose record file cannot be opened, is skipped: no client is ever seen with
// another's data. Returns the number of clients visited.
int forEachCurrentClient(const DataFolder& folder, const ClientIndex& index,
                         const ClientVisit& visit);

} // namespace purrlodge
