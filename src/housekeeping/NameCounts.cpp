#include "housekeeping/NameCounts.h"

#include <algorithm>

#include "housekeeping/CurrentClients.h"
#include "store/TextHelpers.h"

namespace purrlodge {

bool NameCountTable::add(std::string_view name)
{
    const std::string_view kept = name.substr(0, nameTableNameWidth);
    const auto found =
        std::find_if(entries_.begin(), entries_.end(),
                     [kept](const PopListName& entry) { return entry.name == kept; });
    if (found != entries_.end()) {
        ++found->count;
        return true;
    }
    if (entries_.size() >= nameTableSize) {
        ++rejected_;
        return false;
    }
    entries_.push_back({std::string(kept), 1});
    return true;
}

void NameCountTable::sortByCount()
{
    std::stable_sort(entries_.begin(), entries_.end(),
                     [](const PopListName& a, const PopListName& b) { return a.count > b.count; });
}

int NameCountTable::moreThanOnce() const
{
    return static_cast<int>(
        std::count_if(entries_.begin(), entries_.end(),
                      [](const PopListName& entry) { return entry.count > 1; }));
}

NameCountTable tallyCatNames(const DataFolder& folder, const ClientIndex& index)
{
    NameCountTable table;
    forEachCurrentClient(folder, index, [&table](const std::string&, const ClientRecord& client) {
        for (const auto& name : client.catName)
            if (hasLetterOrDigit(name.str()))
                table.add(name.str());
        return true;
    });
    table.sortByCount();
    return table;
}

std::vector<std::string> nameListLines(const NameCountTable& table, NameList list)
{
    std::vector<std::string> lines;
    for (const PopListName& entry : table.entries()) {
        if (list == NameList::Popular && entry.count <= 1)
            break;
        if (list == NameList::Popular || entry.count == 1)
            lines.push_back("\t" + entry.name + "\t" + std::to_string(entry.count));
    }
    const int listed = static_cast<int>(lines.size());
    lines.push_back(" ");
    lines.push_back(std::to_string(listed) + " Unique Names");
    return lines;
}

std::string nameListFileText(const std::vector<std::string>& lines)
{
    std::string text;
    for (const std::string& line : lines)
        text += (line.starts_with('\t') ? line.substr(1) : line) + "\n";
    return text;
}

std::vector<PopListName> popListNames(const NameCountTable& table)
{
    std::vector<PopListName> names;
    for (const PopListName& entry : table.entries()) {
        if (entry.count <= 1)
            break;
        names.push_back(entry);
    }
    return names;
}

} // namespace purrlodge
