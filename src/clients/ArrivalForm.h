#pragma once

#include <array>
#include <cstdint>
#include <string>
#include <vector>

#include "accounts/EstablishmentRecord.h"
#include "accounts/FeeCalculation.h"
#include "accounts/RatesRecord.h"
#include "store/ClientRecord.h"
#include "store/StayRecord.h"

namespace purrlodge {

class Clock;

// The sheets the arrival form can print, in their order.
enum class ArrivalSheet : int {
    PenCard,    // "Arrival Sheet-1": goes with the cats to their pen
    OwnersCopy, // "Arrival Sheet-2": the owner's copy and agreement
    ReturnSheet // "Return Shee (3)": the checklist for the day of going home
};
inline constexpr int arrivalSheetCount = 3;

// The widths the form's texts are typed to: lines to 80 characters, dates
// and remarks as far as their 25-byte fields in the stay record hold them.
inline constexpr std::size_t stayDateTypedLimit = 24;   // the 25-byte date fields
inline constexpr std::size_t stayRemarkTypedLimit = 24; // the 25-byte remark fields
inline constexpr std::size_t stayLineTypedLimit = 80;

// The arrival form: booking a stay and checking what the staff need before
// the sheets print. What is typed is stored in the client's stay record
// ("<code>.TXI"): the dates and remarks, the cats ticked, the standard extra
// wanted (the first of the record's three decisions; the other two are kept
// as they were), text line 1 the medication, text line 2 the feeding changes,
// the first further line the emergency contact for this stay, the second the
// things brought with the cats (handed back on the return sheet), and the
// dialog text the vaccination status.
struct ArrivalForm {
    std::string clientLine; // title, first name and surname
    std::string arrival;    // "dd/mm/yy"
    std::string departure;
    std::string arrivalRemark; // a time, "morning"
    std::string departureRemark;
    std::array<CatBox, catSlotCount> cats;   // one box per cat, named from the record
    std::array<bool, catSlotCount> catShown; // the client has a cat in the slot
    std::string standardExtraName;           // empty: the rates name no standard extra
    bool standardExtraWanted = false;
    std::string medication;
    std::string feedingChanges;
    std::string emergencyContact;
    std::string itemsBrought;
    std::string vaccinationStatus; // the rule's text, which may be edited before printing
    // The client's feeding, vet, chip and insurance and notes, shown for
    // checking; red notes are marked.
    std::vector<std::string> clientChecks;
    std::array<bool, arrivalSheetCount> sheets{true, true, true}; // which sheets print
};

// The stay record's texts as the arrival form uses them.
[[nodiscard]] inline std::string medicationOf(const StayRecord& stay)
{
    return stay.textLine1.str();
}
[[nodiscard]] inline std::string feedingChangesOf(const StayRecord& stay)
{
    return stay.textLine2.str();
}
[[nodiscard]] inline std::string emergencyContactOf(const StayRecord& stay)
{
    return stay.furtherLines[0].str();
}
[[nodiscard]] inline std::string itemsBroughtOf(const StayRecord& stay)
{
    return stay.furtherLines[1].str();
}
[[nodiscard]] inline std::string vaccinationStatusOf(const StayRecord& stay)
{
    return stay.dialogText.str();
}
[[nodiscard]] inline bool standardExtraWantedIn(const StayRecord& stay)
{
    return stay.standardExtraChosen[0].get() != 0;
}

// Whether the stay record holds a stay still to come or still going on: it
// has dates and its departure is not before today.
[[nodiscard]] bool holdsNextStay(const StayRecord& stay, const Clock& clock);

// The form as it opens for the client: filled from the stay record when it
// holds a next stay, else cleared with every cat ticked. The vaccination
// status always starts as the rule gives it today; the sheets as last chosen.
[[nodiscard]] ArrivalForm openArrivalForm(const ClientRecord& client, const StayRecord& stay,
                                          const EstablishmentRecord& establishment,
                                          const RatesRecord& rates, const Clock& clock,
                                          const std::array<bool, arrivalSheetCount>& sheets);

// The length of the stay as the rates charge it, "8 days" or "7 nights", the
// dates read as OK reads them (a four-digit year too); empty while either
// date is not a date.
[[nodiscard]] std::string stayLengthText(std::string arrival, std::string departure,
                                         const RatesRecord& rates);

// The stay record the form comes to, whole: the typed texts, the weekday
// names of both dates, the cats ticked, the length as charged and each cat's
// age in the year of arrival. The number and the unused fields of `earlier`
// are kept. The dates must have passed the stay-date checks.
[[nodiscard]] StayRecord stayRecordOf(const ArrivalForm& form, const ClientRecord& client,
                                      const RatesRecord& rates, const StayRecord& earlier,
                                      const Clock& clock);

// The sheets chosen, as the settings keep them ("1", "2", "3" for each sheet
// that prints) and back; all three for a missing or unreadable setting.
[[nodiscard]] std::string sheetsSetting(const std::array<bool, arrivalSheetCount>& sheets);
[[nodiscard]] std::array<bool, arrivalSheetCount> sheetsFromSetting(const std::string& setting);

} // namespace purrlodge
