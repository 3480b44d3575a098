#pragma once

namespace purrlodge {

// What the command line asks of start-up.
struct StartupSwitches {
    bool forceDirectorySetup = false;     // "-fdc": Directory Setup even when a folder is set
    bool forceEstablishmentSetup = false; // "-fec": Establishment Details even when the file exists
    bool testPrintout = false;            // "-test": the return sheet prints only its colour lines

    friend bool operator==(const StartupSwitches&, const StartupSwitches&) = default;
};

// Reads the switches from main()'s arguments; argc counts the program's name.
// With exactly one argument it may be "-fdc", "-fec" or "-test"; with exactly
// two, only the second is looked at and only for "-fdc" or "-fec". Matching is
// exact and case-sensitive; any other count or value is ignored.
[[nodiscard]] StartupSwitches parseStartupSwitches(int argc, const char* const* argv);

} // namespace purrlodge
