#pragma once

#include <optional>

#include "accounts/EstablishmentForm.h"
#include "accounts/EstablishmentRecord.h"

namespace purrlodge {

class Session;

// Establishment Details (DIALOG 13): the cattery's own details, opened from
// Setup | Cattery Details and at start-up when a data folder has none.

// The dialog's starting entries: the record's fields, its ticks and colour,
// and the preset type size "2" when the record holds none.
[[nodiscard]] EstablishmentForm establishmentFormFrom(const EstablishmentRecord& establishment);

// The OK rules, in order. Shows any message through session.ports.ui.
// - No name or no vaccination period (empty or beginning with a blank):
//   "Entry Void", and the program must end.
// - Otherwise the sixteen entries go into session.establishment, optional
//   lines without a letter or digit are emptied and the display flags are
//   rebuilt; a type size (its first character only) outside 1..5 gives
//   "Text Size Error" and the dialog stays open with the file unchanged;
//   else the record is completed, NESTAB.DAT is written and the dialog closes.
FormVerdict acceptEstablishmentForm(Session& session, const EstablishmentForm& form);

// Opens Establishment Details through the Ui port. The quit code when the
// program must end ("Entry Void": 0), else nothing.
std::optional<int> openEstablishmentDetails(Session& session);

} // namespace purrlodge
