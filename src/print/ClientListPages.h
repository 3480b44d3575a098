#pragma once

#include <string>
#include <vector>

#include "print/ListPages.h"
#include "store/ClientRecord.h"

namespace purrlodge {

class Clock;

// A current client as the lists show it: the code the index spells and the
// record read under it.
struct ListedClient {
    std::string code;
    ClientRecord record{};
};

// What heads every list: the cattery's name and the day it was made.
struct ClientListContext {
    std::string catteryName;
    const Clock& clock;
};

// Which clients the client listing holds, by the inactive flag that Mark
// Inactive Clients sets.
enum class ClientStatus { Active, Inactive };

// The people list: name, address, telephones and the cats' names, a client
// per block, in the order given.
[[nodiscard]] ListPages peopleListPages(const ClientListContext& context,
                                        const std::vector<ListedClient>& clients);

// The cat list: each cat's name, breed, colour, sex, age and owner, the cats
// of a client kept together.
[[nodiscard]] ListPages catListPages(const ClientListContext& context,
                                     const std::vector<ListedClient>& clients);

// The full client list: everything the client record holds, a client per
// block.
[[nodiscard]] ListPages fullClientListPages(const ClientListContext& context,
                                            const std::vector<ListedClient>& clients);

// The client listing of the active or of the inactive clients among those
// given: name, telephone, cats and the last stay.
[[nodiscard]] ListPages clientListingPages(const ClientListContext& context,
                                           const std::vector<ListedClient>& clients,
                                           ClientStatus status);

// ---- Texts the lists share ----

// "Mrs Jane Smith": title, first name and surname, blanks trimmed.
[[nodiscard]] std::string ownerName(const ClientRecord& client);

// The names of the client's cats, ", " between them.
[[nodiscard]] std::string catNames(const ClientRecord& client);

// A cat's age in years from its year of birth, as the details listing counts
// it; "??" when the year is not known.
[[nodiscard]] std::string catAge(const ClientRecord& client, int slot, int currentYear);

// "M", "F", "m" or "f" as the details listing shows the sex; "?" when none
// was stated.
[[nodiscard]] std::string catSex(const ClientRecord& client, int slot);

// "25/11/26" for today, and "599 clients" (or "1 client").
[[nodiscard]] std::string listSubtitle(const Clock& clock, std::size_t count,
                                       const std::string& what);

} // namespace purrlodge
