#pragma once

#include <string>
#include <string_view>
#include <vector>

namespace purrlodge {

class DataFolder;

// One piece of damage: the file it is in and what is wrong, as the program
// would find it when it reads the file.
struct DataSetFinding {
    std::string file;
    std::string damage;
    friend bool operator==(const DataSetFinding&, const DataSetFinding&) = default;
};

// What the program's start-up would find wrong with a client list (FIDEX.CTL
// or OFIDEX.CTL) and repair: a format it does not know, a wrong size, a count
// that disagrees with the entries, blank or repeated entries. A missing past
// list is an empty one; a missing current list is damage. Reads only.
[[nodiscard]] std::vector<std::string> clientListDamage(const DataFolder& folder,
                                                        std::string_view file);

// Reads every file of the data set and lists what is damaged, changing
// nothing: both client lists, client codes that cannot name a file, listed
// clients without a client record, files far longer than their block (read
// only up to it), a missing cattery record or rates, and files a crash left
// half written. Findings come file by file, in the order above.
[[nodiscard]] std::vector<DataSetFinding> checkDataSet(const DataFolder& folder);

} // namespace purrlodge
