#include "print/PeriodReportPages.h"

#include <algorithm>
#include <utility>

#include "print/PrintBuffer.h"
#include "store/TextHelpers.h"

namespace purrlodge {

namespace {

// Rows print at size 4, about a fifth of an inch a line: below the heading a
// page holds this many within the printable height of Letter, the shorter paper.
constexpr std::size_t linesPerPage = 40;
constexpr int pageRightColumn = 31;

std::size_t headingSlots(const ReportTable& table, bool pageNumbers, bool catteryName)
{
    std::size_t headings = 0;
    for (const ReportTable::Column& column : table.columns)
        headings += column.heading.empty() ? 0 : 1;
    return (catteryName ? 1 : 0) + 2 + (pageNumbers ? 1 : 0) + (table.subtitle.empty() ? 0 : 1) +
           headings;
}

// A row's cells at their columns: the first cell printed moves down a line,
// the others share it. Empty cells take no slot.
void addRow(PrintBuffer& buffer, const ReportTable& table, const std::vector<std::string>& cells,
            bool bold)
{
    bool first = true;
    for (std::size_t cell = 0; cell < cells.size() && cell < table.columns.size(); ++cell) {
        if (cells[cell].empty())
            continue;
        const ReportTable::Column& column = table.columns[cell];
        buffer.add(cells[cell],
                   formatted(bold ? "4b, %d, %d, 3, n, 000, %c" : "4, %d, %d, 3, n, 000, %c",
                             column.column, first ? 0 : -1, column.rightAligned ? 'R' : 'L'));
        first = false;
    }
}

} // namespace

std::string textBar(long long value, long long largest, int width)
{
    if (value <= 0 || largest <= 0 || width <= 0)
        return {};
    const long long length = std::max(1LL, (value * width + largest / 2) / largest);
    return std::string(static_cast<std::size_t>(std::min<long long>(length, width)), '|');
}

PeriodReportPages::PeriodReportPages(std::string title, std::string catteryName, std::string period,
                                     std::vector<ReportTable> tables)
    : title_(std::move(title)), catteryName_(std::move(catteryName)), period_(std::move(period)),
      tables_(std::move(tables))
{
    paginate(false);
    if (pages_.size() > 1)
        paginate(true); // the page numbers take a slot of every page
    if (pages_.empty())
        pages_.push_back({});
}

void PeriodReportPages::paginate(bool pageNumbers)
{
    pages_.clear();
    for (std::size_t table = 0; table < tables_.size(); ++table) {
        const ReportTable& t = tables_[table];
        const std::size_t free =
            printSlotCount - headingSlots(t, pageNumbers, !catteryName_.empty());
        const std::size_t perRow = std::max<std::size_t>(t.columns.size(), 1);
        const std::size_t rowsPerPage =
            std::max<std::size_t>(std::min(free / perRow, linesPerPage), 1);
        std::size_t row = 0;
        do {
            const std::size_t end = std::min(row + rowsPerPage, t.rows.size());
            pages_.push_back({table, row, end});
            row = end;
        } while (row < t.rows.size());
    }
}

int PeriodReportPages::pageCount() const
{
    return static_cast<int>(pages_.size());
}

void PeriodReportPages::fillPage(PrintBuffer& buffer, int page) const
{
    page = std::clamp(page, 0, pageCount() - 1);
    buffer.clear();
    if (!catteryName_.empty())
        buffer.add(catteryName_, "2b, 0, 0, 1, n, 000, C");
    buffer.add(title_, "3b, 0, 0, 3, n, 000, C");
    buffer.add(period_, "4, 0, 0, 3, n, 000, C");
    if (pageCount() > 1)
        buffer.add(formatted("Page %d of %d", page + 1, pageCount()),
                   formatted("5, %d, -1, 3, n, 000, R", pageRightColumn));
    if (tables_.empty())
        return;
    const Page& part = pages_[static_cast<std::size_t>(page)];
    const ReportTable& table = tables_[part.table];
    if (!table.subtitle.empty())
        buffer.add(table.subtitle, "4b, 1, 0, 3, n, 000, L");
    std::vector<std::string> headings;
    for (const ReportTable::Column& column : table.columns)
        headings.push_back(column.heading);
    addRow(buffer, table, headings, true);
    for (std::size_t row = part.firstRow; row < part.endRow; ++row)
        addRow(buffer, table, table.rows[row], table.lastRowBold && row + 1 == table.rows.size());
}

} // namespace purrlodge
