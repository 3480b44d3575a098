#pragma once

#include <optional>
#include <string>

#include "app/jobs/JobRequest.h"

namespace purrlodge {

// The manual of purrlodge-cli: what every job does, its options, the exit
// codes and an example; with a job, that job's part of it alone.
[[nodiscard]] std::string jobHelpText(std::optional<JobKind> job);

} // namespace purrlodge
