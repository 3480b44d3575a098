#pragma once

#include <optional>
#include <string>

#include "app/jobs/JobOutcome.h"

namespace purrlodge {

class Session;

// How far a job opens the data set.
enum class DataSetUse {
    FolderOnly, // the folder must exist; its files are the job's to judge
    Records,    // the client list must be there, known and whole; the cattery's files are read
};

// Opens the data set of a job, writing nothing: the folder given (1252
// text), else the settings' CurrentDir. The outcome to end with when it
// cannot be used; nothing when the session is ready.
[[nodiscard]] std::optional<JobOutcome>
openJobDataSet(Session& session, const std::string& givenFolder, DataSetUse use);

} // namespace purrlodge
