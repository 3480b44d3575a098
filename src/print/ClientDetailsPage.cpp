#include "print/ClientDetailsPage.h"

#include <array>
#include <string>
#include <string_view>

#include "print/PrintBuffer.h"

namespace purrlodge {

namespace {

// Quarter inches from the left of the page for the text before the first tab
// and after each tab: the list's tab stops at the printed size.
constexpr std::array<int, 4> partColumns{2, 6, 8, 10};

constexpr std::string_view headingFormat = "2b, 0, 0, 3, n, 000, C";
constexpr std::string_view gapFormat = "4, 0, 0, 3, n, 000, A";

// A line's first part moves down by a line; the others share it.
std::string partFormat(std::size_t part)
{
    return "5, " + std::to_string(partColumns[part]) + (part == 0 ? ", 0" : ", -1") +
           ", 3, n, 000, A";
}

// Adds the line's parts; false when the buffer has no room for them all
// beside the one slot kept for the closing line.
bool addLine(PrintBuffer& buffer, std::string_view line)
{
    std::array<std::string_view, partColumns.size()> parts{};
    std::size_t count = 0;
    while (count + 1 < parts.size()) {
        const std::size_t tab = line.find('\t');
        if (tab == std::string_view::npos)
            break;
        parts[count++] = line.substr(0, tab);
        line.remove_prefix(tab + 1);
    }
    // Beyond the last column, further tabs read as blanks.
    std::string last(line);
    for (char& c : last) {
        if (c == '\t')
            c = ' ';
    }
    std::size_t needed = 1;
    for (std::size_t part = 1; part < count; ++part)
        needed += parts[part].empty() ? 0 : 1;
    needed += last.empty() ? 0 : 1;
    if (buffer.count + static_cast<int>(needed) > printSlotCount - 1)
        return false;

    buffer.add(count == 0 ? std::string_view(last) : parts[0], partFormat(0));
    for (std::size_t part = 1; part < count; ++part) {
        if (!parts[part].empty())
            buffer.add(parts[part], partFormat(part));
    }
    if (count > 0 && !last.empty())
        buffer.add(last, partFormat(count));
    return true;
}

} // namespace

void fillClientDetailsPage(PrintBuffer& buffer, const ClientDetailsListing& listing)
{
    buffer.clear();
    buffer.add(listing.caption, headingFormat);
    buffer.add(" ", gapFormat);
    int printed = 0;
    for (const std::string& line : listing.lines) {
        if (printed == clientDetailsPageLines || !addLine(buffer, line))
            break;
        ++printed;
    }
    const auto left = static_cast<int>(listing.lines.size()) - printed;
    if (left > 0)
        buffer.add("(" + std::to_string(left) + (left == 1 ? " more line" : " more lines") +
                       " on the screen)",
                   partFormat(0));
}

} // namespace purrlodge
