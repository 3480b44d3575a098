#include "store/IndexOperations.h"

#include <utility>

#include "store/TextHelpers.h"
#include "store/WordSort.h"

namespace purrlodge {

void sortIndexEntries(ClientIndex& index)
{
    const int count = index.usedCount();
    for (int last = count - 1; last > 0; --last) {
        bool swapped = false;
        for (int i = 1; i <= last; ++i) {
            if (compareWordSort(index.entries[i].key.str(), index.entries[i + 1].key.str()) > 0) {
                std::swap(index.entries[i], index.entries[i + 1]);
                swapped = true;
            }
        }
        if (!swapped)
            break;
    }
    index.entries[0].key.clear();
    index.entries[0].code.clear();
}

int findCode(const ClientIndex& index, std::string_view code)
{
    const int count = index.usedCount();
    for (int i = 1; i <= count; ++i) {
        if (equalsIgnoringCase(index.entries[i].code.str(), code))
            return i;
    }
    return -1;
}

bool appendEntry(ClientIndex& index, std::string_view key, std::string_view code)
{
    const int count = index.usedCount();
    if (count >= maxClients)
        return false;
    index.count.set(count + 1);
    index.entries[count + 1].key.set(key);
    index.entries[count + 1].code.set(code);
    return true;
}

void removeEntry(ClientIndex& index, int at)
{
    const int count = index.usedCount();
    if (at < 1 || at > count)
        return;
    for (int i = at; i < count; ++i)
        index.entries[i] = index.entries[i + 1];
    index.entries[count].key.clear();
    index.entries[count].code.clear();
    index.count.set(count - 1);
}

} // namespace purrlodge
