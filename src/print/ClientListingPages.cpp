#include <algorithm>

#include "print/ClientListPages.h"
#include "print/PrintedWidth.h"
#include "store/TextHelpers.h"

namespace purrlodge {

namespace {

// Name, telephone, cats and the last stay: 7.75 inches in all.
const std::vector<ListColumn> listingColumns{
    {"Name", 0, 9}, {"Telephone", 9, 6}, {"Cats", 15, 9}, {"Last Visit", 24, 7}};

enum ListingColumn { Name, Telephone, Cats, LastVisit };

bool hasStatus(const ClientRecord& client, ClientStatus status)
{
    return (client.inactive.get() != 0) == (status == ClientStatus::Inactive);
}

ListBlock listingBlock(const ClientRecord& client)
{
    const double catsRoom = listingColumns[Cats].width / 4.0 - 0.08;
    std::vector<std::string> cats = wrapToWidth(catNames(client), {4, 5}, catsRoom, 3);
    if (cats.empty())
        cats.emplace_back();
    ListBlock block;
    for (std::size_t row = 0; row < cats.size(); ++row) {
        ListRow cells(listingColumns.size());
        cells[Cats] = cats[row];
        if (row == 0) {
            cells[Name] = ownerName(client);
            cells[Telephone] = trim(client.telephone.str());
            // The most recent visit, or the one before it when none is set.
            if (hasLetterOrDigit(client.arrivalDate.str()))
                cells[LastVisit] =
                    trim(client.arrivalDate.str()) + " - " + trim(client.departureDate.str());
            else if (hasLetterOrDigit(client.lastInDate.str()))
                cells[LastVisit] =
                    trim(client.lastInDate.str()) + " - " + trim(client.lastOutDate.str());
        }
        block.rows.push_back(std::move(cells));
    }
    return block;
}

} // namespace

ListPages clientListingPages(const ClientListContext& context,
                             const std::vector<ListedClient>& clients, ClientStatus status)
{
    std::vector<ListBlock> blocks;
    for (const ListedClient& client : clients)
        if (hasStatus(client.record, status))
            blocks.push_back(listingBlock(client.record));
    const bool active = status == ClientStatus::Active;
    // Counted before the blocks move into the pages.
    std::string subtitle =
        listSubtitle(context.clock, blocks.size(), active ? "active client" : "inactive client");
    return ListPages(
        {context.catteryName, active ? "Active Clients" : "Inactive Clients", std::move(subtitle)},
        listingColumns, std::move(blocks),
        active ? "No current client is active." : "No current client is inactive.");
}

} // namespace purrlodge
