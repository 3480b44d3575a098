#pragma once

#include "clients/ClientDetails.h"

namespace purrlodge {

struct PrintBuffer;

// The most listing lines one page holds below its heading, at a seventh of
// an inch a line on A4 or Letter.
inline constexpr int clientDetailsPageLines = 62;

// Fills the buffer with a client's full details as one page, the printout
// "Cat Details": the caption as the heading, then every line of the listing,
// its parts between tabs set at the columns of the list's tab stops. A listing
// longer than the page ends with a line saying how many lines were left out.
void fillClientDetailsPage(PrintBuffer& buffer, const ClientDetailsListing& listing);

} // namespace purrlodge
