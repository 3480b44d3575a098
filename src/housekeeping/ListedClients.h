#pragma once

#include <vector>

#include "print/ClientListPages.h"
#include "store/ClientIndex.h"

namespace purrlodge {

class DataFolder;

// The current clients the lists show, in index order: each client whose code
// is safe and whose record can be read, as forEachCurrentClient visits them.
[[nodiscard]] std::vector<ListedClient> listedCurrentClients(const DataFolder& folder,
                                                             const ClientIndex& index);

} // namespace purrlodge
