#include "print/AdmissionRegisterPages.h"

#include <algorithm>
#include <array>
#include <string_view>
#include <utility>

#include "print/PrintBuffer.h"
#include "print/PrintedWidth.h"
#include "store/TextHelpers.h"

namespace purrlodge {

namespace {

// A register column: its heading, where it starts and how wide it is, in
// quarter inches. The seven take 7.75 inches, within the printable width of A4.
struct RegisterColumn {
    std::string_view heading;
    int column = 0;
    int width = 0;
};

constexpr std::array<RegisterColumn, 7> registerColumns{{{"Arrival", 0, 2},
                                                         {"Departure", 2, 3},
                                                         {"Cat(s)", 5, 7},
                                                         {"Owner / address / telephone", 12, 7},
                                                         {"Emergency contact", 19, 5},
                                                         {"Vet", 24, 3},
                                                         {"Vaccinations", 27, 4}}};
constexpr int pageRightColumn = 31;

enum ColumnIndex { Arrival, Departure, Cats, Owner, Emergency, Vet, Vaccinations };

// Each column's lines for one entry (or for the headings).
using Cells = std::array<std::vector<std::string>, registerColumns.size()>;

// Entries print in Arial Narrow at the smallest size, a seventh of an inch a
// line. Below its heading a page holds this many such lines inside the
// printable height of Letter, the shorter paper.
constexpr PrintedFont cellFont{4, 5};
constexpr int linesPerPage = 60;

// The room a text has in its column: a little is kept clear before the next.
double roomIn(ColumnIndex column)
{
    return registerColumns[column].width / 4.0 - 0.08;
}

void addWrapped(std::vector<std::string>& lines, std::string_view text, ColumnIndex column,
                std::size_t maxLines)
{
    for (std::string& line : wrapToWidth(text, cellFont, roomIn(column), maxLines))
        lines.push_back(std::move(line));
}

// Each text is wrapped in its column and cut after a few lines. At most 31
// lines in 12 rows, so an entry always fits an empty page.
Cells cellsOf(const AdmissionEntry& entry)
{
    Cells cells;
    addWrapped(cells[Arrival], entry.arrival, Arrival, 1);
    addWrapped(cells[Departure], entry.departure, Departure, 1);
    for (const std::string& cat : entry.cats)
        addWrapped(cells[Cats], cat, Cats, 2);
    addWrapped(cells[Owner], entry.owner, Owner, 2);
    addWrapped(cells[Owner], entry.address, Owner, 3);
    addWrapped(cells[Owner], entry.telephone, Owner, 2);
    addWrapped(cells[Emergency], entry.emergencyContact, Emergency, 4);
    addWrapped(cells[Vet], entry.vet, Vet, 3);
    addWrapped(cells[Vaccinations], entry.vaccinationStatus, Vaccinations, 3);
    return cells;
}

Cells headingCells()
{
    Cells cells;
    for (std::size_t column = 0; column < registerColumns.size(); ++column)
        cells[column] = wrapToWidth(registerColumns[column].heading, cellFont,
                                    roomIn(static_cast<ColumnIndex>(column)), 2);
    return cells;
}

std::size_t rowsOf(const Cells& cells)
{
    std::size_t rows = 0;
    for (const auto& lines : cells)
        rows = std::max(rows, lines.size());
    return rows;
}

std::size_t slotsOf(const Cells& cells)
{
    std::size_t slots = 0;
    for (const auto& lines : cells)
        slots += lines.size();
    return slots;
}

// The cells row by row: the first text of a row moves down a line, the
// others share it at their columns.
void addRows(PrintBuffer& buffer, const Cells& cells, bool bold)
{
    for (std::size_t row = 0; row < rowsOf(cells); ++row) {
        bool first = true;
        for (std::size_t column = 0; column < cells.size(); ++column) {
            if (row >= cells[column].size())
                continue;
            buffer.add(cells[column][row],
                       formatted(bold ? "5b, %d, %d, 4, n, 000, A" : "5, %d, %d, 4, n, 000, A",
                                 registerColumns[column].column, first ? 0 : -1));
            first = false;
        }
    }
}

constexpr std::string_view gapFormat = "5, 0, 0, 4, n, 000, A";

// The top of a page: the cattery, the title, the period with "Page n of m"
// at the right of its line, and the column headings when there are entries.
void addPageHeading(PrintBuffer& buffer, const std::string& catteryName, const std::string& period,
                    int page, int pages, bool columnHeadings)
{
    if (!catteryName.empty())
        buffer.add(catteryName, "2b, 0, 0, 1, n, 000, C");
    buffer.add("Admission Register", "3b, 0, 0, 3, n, 000, C");
    buffer.add(period, "4, 0, 0, 3, n, 000, C");
    buffer.add(formatted("Page %d of %d", page, pages),
               formatted("5, %d, -1, 3, n, 000, R", pageRightColumn));
    // Back to the left for the lines that follow.
    buffer.add(" ", "5, 0, 0, 3, n, 000, L");
    if (columnHeadings) {
        addRows(buffer, headingCells(), true);
        buffer.add(" ", gapFormat);
    }
}

} // namespace

AdmissionRegisterPages::AdmissionRegisterPages(std::string catteryName, std::string period,
                                               std::vector<AdmissionEntry> entries)
    : catteryName_(std::move(catteryName)), period_(std::move(period)), entries_(std::move(entries))
{
    // An entry goes whole onto the page where it starts: a new page begins
    // when the next entry would take the page past its lines or the buffer
    // past its slots. Each entry is followed by a blank line.
    PrintBuffer heading;
    addPageHeading(heading, catteryName_, period_, 1, 1, true);
    const auto headingSlots = static_cast<std::size_t>(heading.count);
    firstEntryOfPage_.push_back(0);
    std::size_t slots = headingSlots;
    std::size_t lines = 0;
    for (std::size_t entry = 0; entry < entries_.size(); ++entry) {
        const Cells cells = cellsOf(entries_[entry]);
        const std::size_t entrySlots = slotsOf(cells) + 1;
        const std::size_t entryLines = rowsOf(cells) + 1;
        const bool pageHasEntries = entry > firstEntryOfPage_.back();
        if (pageHasEntries && (slots + entrySlots > printSlotCount ||
                               lines + entryLines > static_cast<std::size_t>(linesPerPage))) {
            firstEntryOfPage_.push_back(entry);
            slots = headingSlots;
            lines = 0;
        }
        slots += entrySlots;
        lines += entryLines;
    }
}

int AdmissionRegisterPages::pageCount() const
{
    return static_cast<int>(firstEntryOfPage_.size());
}

void AdmissionRegisterPages::fillPage(PrintBuffer& buffer, int page) const
{
    page = std::clamp(page, 0, pageCount() - 1);
    buffer.clear();
    addPageHeading(buffer, catteryName_, period_, page + 1, pageCount(), !entries_.empty());
    if (entries_.empty()) {
        buffer.add("No stays began in this period.", "4, 1, 0, 3, n, 000, A");
        return;
    }
    const auto index = static_cast<std::size_t>(page);
    const std::size_t end =
        index + 1 < firstEntryOfPage_.size() ? firstEntryOfPage_[index + 1] : entries_.size();
    for (std::size_t entry = firstEntryOfPage_[index]; entry < end; ++entry) {
        addRows(buffer, cellsOf(entries_[entry]), false);
        buffer.add(" ", gapFormat);
    }
}

} // namespace purrlodge
