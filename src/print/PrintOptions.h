#pragma once

#include <array>
#include <string_view>

#include "ports/FormVerdict.h"

namespace purrlodge {

class DataFolder;
class Profile;
struct ColourBlock;
struct EstablishmentRecord;

// The settings key of the mode chosen in Print Dialog Box Option.
inline constexpr std::string_view printDialogKey = "PrtDialog";
// The settings key of the names line on the account ("Y" on, anything else off).
inline constexpr std::string_view accountNamesKey = "AccNames";

// The mode stored in the settings; Every Time until one is chosen, and for
// anything but "0", "1" or "2".
[[nodiscard]] int storedPrintDialogMode(const Profile& profile);

// The printouts that can each be printed in colour, in the order of their
// check boxes in Colour Printing Options and of their digits "0".."5" in the
// establishment's colour-printing choice.
enum class ColourItem : int {
    ArrivalSheet1,
    ArrivalSheet2,
    ReturnSheet,
    AdmissionRegister,
    ClientsAccount,
    AccountCopy,
};
inline constexpr int colourItemCount = 6;

// What Colour Printing Options (DIALOG 61) shows and stores.
struct ColourPrintingForm {
    std::array<bool, colourItemCount> inColour{};
    int nameColour = 0;          // 0..10; 10 is a different colour at random each time
    bool namesOnAccount = false; // the establishment's names line on the account

    friend bool operator==(const ColourPrintingForm&, const ColourPrintingForm&) = default;
};

// The options as the cattery's files and the settings hold them.
[[nodiscard]] ColourPrintingForm colourPrintingFormOf(const EstablishmentRecord& establishment,
                                                      const ColourBlock& colours,
                                                      const Profile& profile);

// Whether a printout is printed in colour.
[[nodiscard]] bool printsInColour(const EstablishmentRecord& establishment, ColourItem item);

// OK of Colour Printing Options: the choice of printouts goes to NESTAB.DAT,
// the name's colour to NESTAB.XAT and the names line to the settings. The
// records in memory change only when their file took the change; a failed
// write has been told and keeps the dialog open.
[[nodiscard]] FormVerdict acceptColourPrintingForm(const ColourPrintingForm& form,
                                                   const DataFolder& folder, Profile& profile,
                                                   EstablishmentRecord& establishment,
                                                   ColourBlock& colours);

} // namespace purrlodge
