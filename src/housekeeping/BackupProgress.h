#pragma once

#include <string>

namespace purrlodge {

// What a backup or restore is doing, shown while it copies; the person may
// cancel between two files.
class BackupProgress {
public:
    virtual ~BackupProgress() = default;

    // Shows the text and `done` of `total` steps. False when the person has
    // asked to cancel.
    virtual bool showProgress(const std::string& text, int done, int total) = 0;

    // The work is over: the progress display closes.
    virtual void endProgress() = 0;
};

} // namespace purrlodge
