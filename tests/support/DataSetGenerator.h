#pragma once

#include "store/ClientIndex.h"

namespace purrlodge {
class DataFolder;
}

namespace purrlodge::testing {

// The calendar year the generated ages and dates are counted from.
inline constexpr int generatedDataYear = 2024;

// Writes a full data set into the folder through the program's own record
// types: `clients` client records (at most 599) with up to six cats each,
// varied surnames (among them families of Wood, Woodfield, Woodman and Wolf),
// notes, foods, some red notes lines, an auto memo for about one client in
// five, and FIDEX.CTL sorted as start-up leaves it. The same seed always gives
// the same data set. Returns the index as written.
ClientIndex generateDataSet(const DataFolder& folder, int clients, unsigned seed);

} // namespace purrlodge::testing
