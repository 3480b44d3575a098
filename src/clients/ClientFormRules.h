#pragma once

#include <optional>
#include <string>
#include <string_view>

#include "clients/ClientForm.h"
#include "ports/FormVerdict.h"
#include "ports/Message.h"
#include "store/ClientIndex.h"
#include "store/ClientRecord.h"

namespace purrlodge {

class ClientFormQuestions;
class Clock;
class DataFolder;
class RandomDraw;
class Ui;

// The characters a client's surname may hold.
inline constexpr std::string_view permittedNameCharacterSet =
    "'.abcdefghijklmnopqrstuvwxyzABCDEFGHIJKLMNOPQRSTUVWXYZ -";

// The rules behind Full Client Information (DIALOG 3), opened by Tasks | New
// Client and Tasks | Edit Client Details.

// Help on New Client registration (DIALOG 27): a fixed page with a Close button.
inline constexpr std::string_view newClientHelpTitle = "Help on New Client registration";
inline constexpr std::string_view newClientHelpText =
    "Notes: the four Notes lines are printed on the check-in sheet. Tick \"Red\" beside a line "
    "to have it printed in red; such a line shows \"#R#\" when an arrival is set up.\n\n"
    "DoB: the cat's year of birth only, e.g. 2003.\n\n"
    "MmFf: the cat's sex and status. Upper case (M, F) for an un-neutered cat, lower case "
    "(m, f) for a neutered one.\n\n"
    "C+-I+-: micro-chip and insurance, e.g. C+I- for a cat that is micro-chipped but not "
    "insured.\n\n"
    "Last Vac: the month and year of the last vaccination, e.g. 06/09. How long a vaccination "
    "stays valid is set on the Setup | Cattery Details page.\n\n"
    "Known: how well the cat is known to you. The house scale is 1 to 5 (1 if not known), "
    "although any value from 0 to 10 is accepted.";

// A notes line that carries this marker is printed in red.
inline constexpr std::string_view redNoteMarker = "#R#";

// The empty form of a new client.
[[nodiscard]] ClientForm newClientForm();

// The form of an existing client, for editing: the mobile number without its
// "::" tail, red notes ticked and shown without their marker, the used cat
// slots as rows ("C+I-" for chip and insurance, "mm/yy" of the last
// vaccination in the clock's local calendar, blanks for what is not known).
[[nodiscard]] ClientForm clientFormFrom(const ClientRecord& client, const Clock& clock);

// The notes line to store for a typed line and its "Red" box: a ticked line
// gains "#R# " unless it already carries the marker; an unticked line that
// carries it keeps only the text after it.
[[nodiscard]] std::string storedNoteLine(std::string_view typed, bool red);

// The message refusing a new client when the index holds all the clients it
// can ("Client List Full"); nothing when there is room.
[[nodiscard]] std::optional<Message> newClientRefusal(const ClientIndex& index);

// What the client form's OK works on: the data set, the current client and
// the ports it needs.
struct ClientFormContext {
    const DataFolder& folder;
    ClientIndex& index;
    ClientRecord& client; // the current client: replaced when the save goes through
    // The current client's code as the index spells it: an edited client is
    // saved under it, whatever code the record itself holds; a new client's
    // code is put here when the save goes through.
    std::string& clientCode;
    RandomDraw& draw; // makes a new client's code
    const Clock& clock;
    Ui& ui;
    int currentYear = 1970;
};

// OK of Full Client Information. Checks the entries in the program's fixed
// order and shows the first failure through the Ui port, asking the form's
// questions part-way; on success the record is saved and becomes the current
// client (a new one gets its code and index entry, record first).
//
// - The current record and the index change only when the save goes through,
//   so a failed check, a failed write or a cancelled form leaves them as the
//   disc holds them. The one exception is a confirmed surname change, which
//   is saved at once.
// - Any failed write keeps the form open with the entries as typed.
// - A cat whose row was emptied (or that was replaced by a new cat) is asked
//   about with DIALOG 50 and filed in the other-cats list when the save goes
//   through, so a cat is never listed as gone while its client still holds it.
//   Cancel on DIALOG 50 abandons the OK: the form stays open as typed, and the
//   name can be put back or the question answered at the next OK.
// - A new client when the index is full is refused before any check, and
//   nothing is written.
FormVerdict acceptClientForm(const ClientForm& form, const ClientFormContext& context,
                             ClientFormQuestions& questions);

} // namespace purrlodge
