#include "housekeeping/AddressFile.h"

#include "housekeeping/CurrentClients.h"
#include "store/TextHelpers.h"

namespace purrlodge {

namespace {

std::string catNamesLine(const ClientRecord& client)
{
    std::string line;
    for (int slot = 0; slot < catSlotCount; ++slot) {
        const std::string name = client.catName[slot].str();
        if (!hasLetterOrDigit(name))
            continue;
        if (slot > 0)
            line += ", ";
        line += name;
    }
    return line;
}

} // namespace

std::string addressLabel(const ClientRecord& client, LabelStyle style)
{
    const std::string owner =
        client.style.str() + " " + client.firstName.str() + " " + client.surname.str();
    std::string label;
    if (style == LabelStyle::Plain || !hasLetterOrDigit(client.catName[0].str()))
        label = owner + "\n";
    else
        label = catNamesLine(client) + "\nc\\o " + owner + "\n";
    for (const auto& line : client.address)
        if (hasLetterOrDigit(line.str()))
            label += line.str() + "\n";
    return label + "\n";
}

ExportText addressFileText(const DataFolder& folder, const ClientIndex& index, LabelStyle style)
{
    ExportText file;
    forEachCurrentClient(folder, index, [&](const std::string&, const ClientRecord& client) {
        file.text += addressLabel(client, style);
        ++file.count;
        return true;
    });
    return file;
}

std::string addressesFiledText(int count, std::string_view path)
{
    return std::to_string(count) + " names and addresses printed to file:\n" + std::string(path);
}

} // namespace purrlodge
