#include <algorithm>

#include "print/ClientListPages.h"
#include "print/PrintedWidth.h"
#include "store/ClientFields.h"
#include "store/TextHelpers.h"

namespace purrlodge {

namespace {

// Name, address, telephones and cats: 7.75 inches in all.
const std::vector<ListColumn> peopleColumns{
    {"Name", 0, 8}, {"Address", 8, 9}, {"Telephone", 17, 6}, {"Cats", 23, 8}};

enum PeopleColumn { Name, Address, Telephone, Cats };

ListBlock personBlock(const ClientRecord& client)
{
    std::vector<std::string> address;
    for (const auto& line : client.address)
        if (hasLetterOrDigit(line.str()))
            address.push_back(trim(line.str()));
    std::vector<std::string> telephones;
    if (hasLetterOrDigit(client.telephone.str()))
        telephones.push_back(trim(client.telephone.str()));
    if (const std::string mobile = trim(mobileNumberOf(client)); hasLetterOrDigit(mobile))
        telephones.push_back("Mob: " + mobile);
    // The cats' names wrap within their column, a few lines at most.
    const double catsRoom = peopleColumns[Cats].width / 4.0 - 0.08;
    const std::vector<std::string> cats = wrapToWidth(catNames(client), {4, 5}, catsRoom, 3);

    const std::size_t rows =
        std::max({std::size_t{1}, address.size(), telephones.size(), cats.size()});
    ListBlock block;
    for (std::size_t row = 0; row < rows; ++row) {
        ListRow cells(peopleColumns.size());
        if (row == 0)
            cells[Name] = ownerName(client);
        if (row < address.size())
            cells[Address] = address[row];
        if (row < telephones.size())
            cells[Telephone] = telephones[row];
        if (row < cats.size())
            cells[Cats] = cats[row];
        block.rows.push_back(std::move(cells));
    }
    return block;
}

} // namespace

ListPages peopleListPages(const ClientListContext& context,
                          const std::vector<ListedClient>& clients)
{
    std::vector<ListBlock> blocks;
    for (const ListedClient& client : clients)
        blocks.push_back(personBlock(client.record));
    return ListPages(
        {context.catteryName, "People List", listSubtitle(context.clock, clients.size(), "client")},
        peopleColumns, std::move(blocks), "There are no current clients.");
}

} // namespace purrlodge
