#pragma once

#include <string>

#include "ports/FormVerdict.h"
#include "store/ClientIndex.h"

namespace purrlodge {

class DataFolder;

// Initial Receipt Number (DIALOG 15), from Setup | Set Account Number. The
// counter is the last receipt number issued, in the FIDEX.CTL header.

// The number edit 102 offers: the last receipt number plus one with "%d", or
// "1000" when no number is recorded (0).
[[nodiscard]] std::string receiptNumberOffer(const ClientIndex& index);

// OK: the text (at most 7 characters) read atoi-style, less one, becomes the
// last receipt number, so the next account takes the number typed; FIDEX.CTL
// is rewritten. The counter in `index` changes only when the index was
// written; otherwise the dialog stays open. Cancel leaves the counter alone.
FormVerdict acceptReceiptNumber(const std::string& typed, ClientIndex& index,
                                const DataFolder& folder);

} // namespace purrlodge
