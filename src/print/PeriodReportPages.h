#pragma once

#include <string>
#include <string_view>
#include <vector>

namespace purrlodge {

struct PrintBuffer;

// One printed table of a period report: its column headings and rows of cells,
// each cell at its column (quarter inches; a right-aligned cell ends there).
struct ReportTable {
    struct Column {
        std::string heading;
        int column = 0;
        bool rightAligned = false;
    };
    std::string subtitle; // a line above the headings; empty for none
    std::vector<Column> columns;
    std::vector<std::vector<std::string>> rows;
    bool lastRowBold = false; // a totals row
};

// A period report over as many pages as its tables need: each page has the
// cattery's name, the report's title, the period (with "Page n of m" at the
// right when there are several pages), then its part of one table under the
// table's subtitle and headings. Each table starts a page of its own; a page
// ends before the buffer's slots or the paper run out. An empty cell or
// heading takes no slot, so a year's thirteen rows of seven cells fit a page.
class PeriodReportPages {
public:
    PeriodReportPages(std::string title, std::string catteryName, std::string period,
                      std::vector<ReportTable> tables);

    [[nodiscard]] int pageCount() const;

    // Fills the buffer with page `page` (0-based).
    void fillPage(PrintBuffer& buffer, int page) const;

    [[nodiscard]] const std::string& title() const { return title_; }

private:
    // Cuts the tables into pages, with room for page numbers or without.
    void paginate(bool pageNumbers);

    struct Page {
        std::size_t table = 0;
        std::size_t firstRow = 0;
        std::size_t endRow = 0;
    };

    std::string title_;
    std::string catteryName_;
    std::string period_;
    std::vector<ReportTable> tables_;
    std::vector<Page> pages_;
};

// "||||||": a bar of `value` against `largest` in at most `width` characters,
// at least one for any value above 0.
[[nodiscard]] std::string textBar(long long value, long long largest, int width);

} // namespace purrlodge
