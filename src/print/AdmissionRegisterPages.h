#pragma once

#include <string>
#include <vector>

namespace purrlodge {

struct PrintBuffer;

// One stay in the admission register: what a licensing inspection asks for.
struct AdmissionEntry {
    std::string arrival;   // "dd/mm/yy"
    std::string departure; // "dd/mm/yy"
    // One line per cat: "Name  (sex, age, breed colour)", e.g.
    // "Tibbles  (f, 7, Persian Cream)".
    std::vector<std::string> cats;
    std::string owner;            // title, first name and surname
    std::string address;          // the address lines joined with ", "
    std::string telephone;        // the telephone, and the mobile when there is one
    std::string emergencyContact; // for this stay; empty when not known
    std::string vet;
    std::string vaccinationStatus; // empty when not known

    friend bool operator==(const AdmissionEntry&, const AdmissionEntry&) = default;
};

// The admission register of a period, over as many pages as its entries
// need: each page has the cattery's name, "Admission Register", the period
// and "Page n of m" at the top, the column headings, then the entries in the
// order given, an entry never split across two pages. A register with no
// entries is one page saying that no stays were found.
class AdmissionRegisterPages {
public:
    AdmissionRegisterPages(std::string catteryName, std::string period,
                           std::vector<AdmissionEntry> entries);

    [[nodiscard]] int pageCount() const;

    // Fills the buffer with page `page` (0-based).
    void fillPage(PrintBuffer& buffer, int page) const;

private:
    std::string catteryName_;
    std::string period_;
    std::vector<AdmissionEntry> entries_;
    std::vector<std::size_t> firstEntryOfPage_;
};

} // namespace purrlodge
