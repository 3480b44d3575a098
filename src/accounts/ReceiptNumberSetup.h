#pragma once

#include <string>

#include "accounts/EstablishmentForm.h"
#include "store/ClientIndex.h"

namespace purrlodge {

class Session;

// Initial Receipt Number (DIALOG 15), from Setup | Set Account Number. The
// counter is the last receipt number issued, in the FIDEX.CTL header.

// The number edit 102 offers: the last receipt number plus one with "%d", or
// "1000" when no number is recorded (0).
[[nodiscard]] std::string receiptNumberOffer(const ClientIndex& index);

// OK: the text (at most 7 characters) read atoi-style, less one, becomes the
// last receipt number, so the next account takes the number typed; FIDEX.CTL
// is rewritten. Cancel calls nothing and leaves the counter alone.
FormVerdict acceptReceiptNumber(Session& session, const std::string& typed);

} // namespace purrlodge
