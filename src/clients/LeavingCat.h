#pragma once

#include <string>
#include <string_view>

#include "clients/OtherCatsFile.h"
#include "ports/Clock.h"
#include "ports/Message.h"
#include "store/ClientRecord.h"

namespace purrlodge {

class DataFolder;
class Ui;

// The choices under "Reason for Reduction" in Change to Cats noted (DIALOG 50).
enum class LeavingReason { Lost, Death, NewHome, Other, NotGiven };

// What DIALOG 50 hands back on OK.
struct LeavingCatAnswer {
    LeavingReason reason = LeavingReason::NotGiven;
    std::string notes; // the "Notes" box

    friend bool operator==(const LeavingCatAnswer&, const LeavingCatAnswer&) = default;
};

// A cat leaving its client, as the client record held it.
struct DepartingCat {
    std::string name;
    std::string breed;
    std::string colour;
    int sex = 0;
    int birthYear = 0;

    friend bool operator==(const DepartingCat&, const DepartingCat&) = default;
};

inline constexpr std::string_view leavingCatDialogTitle = "Change to Cats noted.";
// The longest note DIALOG 50 takes.
inline constexpr std::size_t leavingCatNotesLength = 79;

// DIALOG 50's caption line: "What happened to %s ?".
[[nodiscard]] std::string leavingCatCaption(std::string_view catName);

// The reason kept in the other-cats list: "Lost", "" for a death, "Rehomed",
// and "Unknown reason" for Other or no choice.
[[nodiscard]] std::string_view leavingReasonText(LeavingReason reason);

// The cat in a slot of a client record.
[[nodiscard]] DepartingCat departingCatOf(const ClientRecord& client, int slot);

// The other-cats record of a departing cat: history "Born %d,   Departed %s,   age %d"
// with today as dd/mm/yy and the age from the year of birth.
[[nodiscard]] OtherCatRecord otherCatRecordOf(const DepartingCat& cat,
                                              const LeavingCatAnswer& answer,
                                              const CivilTime& today, int currentYear);

// Reads "<code>.XC2" (ten cleared records, sex -1, when it cannot be read),
// drops the oldest record, puts the newcomer last and writes the file whole.
[[nodiscard]] bool appendOtherCat(const DataFolder& folder, std::string_view code,
                                  const OtherCatRecord& cat);

// "%s has been moved to %s %s's 'Other Cats' list", titled "Other Cats".
[[nodiscard]] Message movedToOtherCatsMessage(std::string_view catName, std::string_view firstName,
                                              std::string_view surname);

// Files a departing cat in the client's other-cats list, dated `today`, and
// tells the person where it went. Returns whether it was filed; a failed
// write has been told as a file error, and the cat is not said to have moved.
[[nodiscard]] bool moveCatToOtherCats(const DataFolder& folder, Ui& ui, const CivilTime& today,
                                      int currentYear, const ClientRecord& client,
                                      const DepartingCat& cat, const LeavingCatAnswer& answer);

} // namespace purrlodge
