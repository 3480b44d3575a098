#pragma once

#include "store/ClientIndex.h"

namespace purrlodge {
class DataFolder;
}

namespace purrlodge::testing {

// Writes a full data set into the folder through the program's own record
// types: `clients` client records (at most 599) with up to six cats each and a
// last stay somewhere in 2024 to 2026, every field Global Search looks in
// filled (some notes lines red), an auto memo for
// about one client in five, ten accounts for every client (numbered from 1000
// on, a fortnight apart from January 2024, with days, board, discounts, extras
// and credits that add up to each final balance; the counter at the last), and FIDEX.CTL sorted as
// start-up leaves it. The same seed always gives the same data set. Returns the index as written.
ClientIndex generateDataSet(const DataFolder& folder, int clients, unsigned seed);

} // namespace purrlodge::testing
