#pragma once

#include <functional>
#include <string_view>

namespace purrlodge {

// Where a job's lines go: its results to standard output, warnings (always)
// and progress (only when asked for) to standard error. Lines are 1252 text
// without their line end.
struct JobOutput {
    std::function<void(std::string_view)> result;
    std::function<void(std::string_view)> note;
    bool verbose = false;

    void progress(std::string_view line) const
    {
        if (verbose)
            note(line);
    }
};

} // namespace purrlodge
