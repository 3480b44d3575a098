#pragma once

#include "accounts/EstablishmentForm.h"
#include "accounts/EstablishmentRecord.h"

namespace purrlodge {

class DataFolder;
class Ui;

// Establishment Details (DIALOG 13): the cattery's own details, opened from
// Setup | Cattery Details and at start-up when a data folder has none.

// The dialog's starting entries: the record's fields, its ticks and colour,
// and the preset type size "2" when the record holds none.
[[nodiscard]] EstablishmentForm establishmentFormFrom(const EstablishmentRecord& establishment);

// The OK rules, in order, showing any message through `ui`.
// - No name or no vaccination period (empty or beginning with a blank):
//   "Entry Void", and the program must end.
// - Otherwise the sixteen entries are taken, optional lines without a letter
//   or digit are emptied and the display flags are rebuilt; a type size (its
//   first character only) outside 1..5 gives "Text Size Error" and the dialog
//   stays open; else the record is completed and NESTAB.DAT is written.
// `establishment` changes only when the file was written; a failed write
// keeps the dialog open.
FormVerdict acceptEstablishmentForm(const EstablishmentForm& form,
                                    EstablishmentRecord& establishment, const DataFolder& folder,
                                    Ui& ui);

} // namespace purrlodge
