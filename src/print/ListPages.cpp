#include "print/ListPages.h"

#include <algorithm>
#include <string_view>
#include <utility>

#include "print/PrintBuffer.h"
#include "print/PrintedWidth.h"
#include "store/TextHelpers.h"

namespace purrlodge {

namespace {

// List lines print in Arial Narrow at the smallest size, a seventh of an inch
// a line. Below its heading a page holds this many inside the printable
// height of Letter, the shorter paper.
constexpr PrintedFont cellFont{4, 5};
constexpr int linesPerPage = 60;
// "Page n of m" ends here, at the right of 7.75 inches of columns.
constexpr int pageRightColumn = 31;

constexpr std::string_view gapFormat = "5, 0, 0, 4, n, 000, A";
// Blocks are set apart by this much above each, in device units: a slot for a
// blank line between them would cost a tenth of a page's slots.
constexpr int blockGap = 50;

std::size_t filledCells(const ListRow& row)
{
    return static_cast<std::size_t>(std::count_if(
        row.begin(), row.end(), [](const std::string& text) { return !text.empty(); }));
}

// A row takes a slot for each text, and one for a row with none.
std::size_t slotsOf(const ListRow& row)
{
    return std::max<std::size_t>(filledCells(row), 1);
}

// The row's texts at their columns: the first moves down a line, the others
// share it.
void addRow(PrintBuffer& buffer, const std::vector<ListColumn>& columns, const ListRow& row,
            bool bold, int offset = 0, bool red = false)
{
    bool first = true;
    for (std::size_t column = 0; column < columns.size() && column < row.size(); ++column) {
        if (row[column].empty())
            continue;
        // A little is kept clear before the next column.
        const double room = columns[column].width / 4.0 - 0.08;
        buffer.add(cutToWidth(row[column], cellFont, room),
                   formatted(bold ? "5b, %d, %d, 4, n, %s, A" : "5, %d, %d, 4, n, %s, A",
                             columns[column].column, first ? offset : -1, red ? "900" : "000"));
        first = false;
    }
    if (first)
        buffer.add(" ", formatted("5, 0, %d, 4, n, 000, A", offset));
}

ListRow headingRow(const std::vector<ListColumn>& columns)
{
    ListRow row;
    for (const ListColumn& column : columns)
        row.push_back(column.heading);
    return row;
}

void addPageHeading(PrintBuffer& buffer, const ListHeading& heading,
                    const std::vector<ListColumn>& columns, int page, int pages)
{
    if (!heading.catteryName.empty())
        buffer.add(heading.catteryName, "2b, 0, 0, 1, n, 000, C");
    buffer.add(heading.title, "3b, 0, 0, 3, n, 000, C");
    buffer.add(heading.subtitle.empty() ? std::string(" ") : heading.subtitle,
               "4, 0, 0, 3, n, 000, C");
    buffer.add(formatted("Page %d of %d", page, pages),
               formatted("5, %d, -1, 3, n, 000, R", pageRightColumn));
    // Back to the left for the lines that follow.
    buffer.add(" ", "5, 0, 0, 3, n, 000, L");
    addRow(buffer, columns, headingRow(columns), true);
    buffer.add(" ", gapFormat);
}

} // namespace

ListPages::ListPages(ListHeading heading, std::vector<ListColumn> columns,
                     std::vector<ListBlock> blocks, std::string emptyText)
    : heading_(std::move(heading)), columns_(std::move(columns)), blocks_(std::move(blocks)),
      emptyText_(std::move(emptyText))
{
    // A new page begins when the next block would take the page past its
    // lines or the buffer past its slots; the gap above each block is counted
    // as a line. A block too big for an empty page still goes on a page of its
    // own.
    PrintBuffer top;
    addPageHeading(top, heading_, columns_, 1, 1);
    const auto headingSlots = static_cast<std::size_t>(top.count);
    firstBlockOfPage_.push_back(0);
    std::size_t slots = headingSlots;
    std::size_t lines = 0;
    for (std::size_t block = 0; block < blocks_.size(); ++block) {
        std::size_t blockSlots = 0;
        for (const ListRow& row : blocks_[block].rows)
            blockSlots += slotsOf(row);
        const std::size_t blockLines = blocks_[block].rows.size() + 1;
        const bool pageHasBlocks = block > firstBlockOfPage_.back();
        if (pageHasBlocks && (slots + blockSlots > printSlotCount ||
                              lines + blockLines > static_cast<std::size_t>(linesPerPage))) {
            firstBlockOfPage_.push_back(block);
            slots = headingSlots;
            lines = 0;
        }
        slots += blockSlots;
        lines += blockLines;
    }
}

int ListPages::pageCount() const
{
    return static_cast<int>(firstBlockOfPage_.size());
}

std::pair<std::size_t, std::size_t> ListPages::blocksOfPage(int page) const
{
    const auto index = static_cast<std::size_t>(std::clamp(page, 0, pageCount() - 1));
    const std::size_t end =
        index + 1 < firstBlockOfPage_.size() ? firstBlockOfPage_[index + 1] : blocks_.size();
    return {firstBlockOfPage_[index], end};
}

void ListPages::fillPage(PrintBuffer& buffer, int page) const
{
    page = std::clamp(page, 0, pageCount() - 1);
    buffer.clear();
    addPageHeading(buffer, heading_, columns_, page + 1, pageCount());
    if (blocks_.empty()) {
        buffer.add(emptyText_, "4, 1, 0, 3, n, 000, A");
        return;
    }
    const auto [first, end] = blocksOfPage(page);
    for (std::size_t block = first; block < end; ++block) {
        const auto& rows = blocks_[block].rows;
        for (std::size_t row = 0; row < rows.size(); ++row)
            addRow(buffer, columns_, rows[row], false, row == 0 ? blockGap : 0,
                   blocks_[block].isRed(row));
    }
}

} // namespace purrlodge
