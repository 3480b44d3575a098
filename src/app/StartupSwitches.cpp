#include "app/StartupSwitches.h"

#include <string_view>

namespace purrlodge {

StartupSwitches parseStartupSwitches(int argc, const char* const* argv)
{
    StartupSwitches switches;
    if (argv == nullptr || (argc != 2 && argc != 3) || argv[argc - 1] == nullptr)
        return switches;

    const std::string_view argument = argv[argc - 1];
    switches.forceDirectorySetup = argument == "-fdc";
    switches.forceEstablishmentSetup = argument == "-fec";
    // "-test" counts only as the sole argument.
    switches.testPrintout = argc == 2 && argument == "-test";
    return switches;
}

} // namespace purrlodge
