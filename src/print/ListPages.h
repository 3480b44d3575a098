#pragma once

#include <string>
#include <vector>

namespace purrlodge {

struct PrintBuffer;

// A column of a printed list: its heading, where it starts and how wide it is,
// in quarter inches from the left of the printable area.
struct ListColumn {
    std::string heading;
    int column = 0;
    int width = 0;
};

// One printed line of a list: a text for each column, empty where the column
// has nothing on that line.
using ListRow = std::vector<std::string>;

// The lines of one entry (a client, say), kept together on one page.
struct ListBlock {
    std::vector<ListRow> rows;
    // The rows printed in red (a red notes line); none when empty.
    std::vector<bool> redRows;

    [[nodiscard]] bool isRed(std::size_t row) const { return row < redRows.size() && redRows[row]; }
};

// What heads every page of a list besides its column headings.
struct ListHeading {
    std::string catteryName;
    std::string title;
    std::string subtitle; // the date printed, the count, a filter
};

// A list over as many pages as its blocks need: each page has the cattery's
// name, the title, the subtitle with "Page n of m" at the right, the column
// headings, then the blocks in order with a little space above each, a block
// never split across two pages. Each text is cut to its column. A list with
// no blocks is one page saying `emptyText`.
class ListPages {
public:
    ListPages(ListHeading heading, std::vector<ListColumn> columns, std::vector<ListBlock> blocks,
              std::string emptyText);

    [[nodiscard]] int pageCount() const;
    [[nodiscard]] const ListHeading& heading() const { return heading_; }
    [[nodiscard]] const std::vector<ListColumn>& columns() const { return columns_; }
    [[nodiscard]] const std::vector<ListBlock>& blocks() const { return blocks_; }
    [[nodiscard]] const std::string& emptyText() const { return emptyText_; }

    // The blocks on page `page` (0-based): first and one past the last.
    [[nodiscard]] std::pair<std::size_t, std::size_t> blocksOfPage(int page) const;

    // Fills the buffer with page `page` (0-based).
    void fillPage(PrintBuffer& buffer, int page) const;

private:
    ListHeading heading_;
    std::vector<ListColumn> columns_;
    std::vector<ListBlock> blocks_;
    std::string emptyText_;
    std::vector<std::size_t> firstBlockOfPage_;
};

} // namespace purrlodge
