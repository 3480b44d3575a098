#pragma once

#include <string>

namespace purrlodge {

// The exit codes of purrlodge-cli, for the scripts and timers that run it.
namespace jobExit {
inline constexpr int done = 0;
inline constexpr int failed = 1;          // the job could not be done; nothing claims otherwise
inline constexpr int usage = 2;           // the arguments could not be understood
inline constexpr int dataSetUnusable = 3; // no data folder, no client list, or a damaged one
inline constexpr int damageFound = 4;     // check found damage
inline constexpr int noRoom = 5;          // the backup would not fit where it is to go
} // namespace jobExit

// How a job ended: its exit code and, when it failed, the one line that
// says why.
struct JobOutcome {
    int exitCode = jobExit::done;
    std::string message;
};

} // namespace purrlodge
