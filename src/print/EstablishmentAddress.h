#pragma once

namespace purrlodge {

struct EstablishmentRecord;
struct PrintBuffer;

// The cattery's address lines, then its telephone and fax on one line and its
// e-mail, centred under its name as every page the cattery sends out heads
// them; empty fields are left out.
void addEstablishmentAddress(PrintBuffer& buffer, const EstablishmentRecord& establishment);

} // namespace purrlodge
