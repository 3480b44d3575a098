#pragma once

#include <array>
#include <cstdint>
#include <string>
#include <string_view>
#include <vector>

#include "store/ClientRecord.h"

namespace purrlodge {

class Clock;
class DataFolder;

// Tab stops of the details list box (DIALOG 12), in dialog units.
inline constexpr std::array<int, 3> clientDetailsTabStops{50, 70, 100};

inline constexpr std::string_view clientDetailsCaption = "Client's Full Details";

// What DIALOG 12 shows for one client: its caption, the list lines (with their
// tabs) and which of the two look-up buttons can be pressed. The dialog only
// displays this.
struct ClientDetailsListing {
    std::string caption;
    std::vector<std::string> lines;
    bool otherCatsEnabled = false;    // "See Other Cats" (102)
    bool specialNotesEnabled = false; // "See Special Notes" (103)
};

// "Chip?", "Chip-", "Chip+" for chip state 0, 1, 2 (other values read as 0).
[[nodiscard]] std::string_view chipWord(std::int32_t chipState);

// "Ins?", "Ins-", "Ins+" for insurance state 0, 1, 2 (other values read as 0).
[[nodiscard]] std::string_view insuranceWord(std::int32_t insuranceState);

// The listing of a current client. finderCode is the code the finder chose
// (it names the client's other files); the record's own code is shown beside
// it on the "OFID" line so that a disagreement shows. Ages are counted from
// currentYear; stored date numbers are read in the clock's local calendar.
[[nodiscard]] ClientDetailsListing clientDetailsListing(const DataFolder& folder,
                                                        const ClientRecord& client,
                                                        std::string_view finderCode,
                                                        int currentYear, const Clock& clock);

// The shorter listing of a past client: no mobile line, cat lines with the
// colour only, a two-figure registration year and no other-cats or
// special-notes lines (both buttons stay disabled).
[[nodiscard]] ClientDetailsListing pastClientDetailsListing(const ClientRecord& client,
                                                            std::string_view finderCode,
                                                            int currentYear, const Clock& clock);

inline constexpr std::string_view vaccinationCertsOk = "Vac Certs OK";

// The vaccination-certificate status the arrival form starts with: "Vac Certs
// OK", or "At least one Vac Cert is more than %s years old!" (filled with the
// validity text as stored) as soon as one named cat's last vaccination plus the
// validity period in 365-day years lies before now. A cat with no vaccination
// date therefore always fails.
[[nodiscard]] std::string vaccinationCertificateStatus(const ClientRecord& client,
                                                       std::string_view validityYearsText,
                                                       std::int64_t now);

} // namespace purrlodge
