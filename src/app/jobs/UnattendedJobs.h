#pragma once

#include "app/jobs/JobOutcome.h"
#include "app/jobs/JobOutput.h"
#include "app/jobs/JobRequest.h"
#include "ports/Ports.h"

namespace purrlodge {

class Session;

// Runs the job the request asks for on its own Session over the ports, with
// nobody at the screen: the ports' Ui must not wait for anyone. The data
// set is opened first without writing anything; a data set that cannot be
// used, or a damaged client list, ends every job but check before it starts.
[[nodiscard]] JobOutcome runJob(const JobRequest& request, Ports ports, const JobOutput& output);

// The jobs, each over a session whose data set is open.
[[nodiscard]] JobOutcome runBackupJob(Session& session, const JobRequest& request,
                                      const JobOutput& output);
[[nodiscard]] JobOutcome runExportJob(Session& session, const JobRequest& request,
                                      const JobOutput& output);
[[nodiscard]] JobOutcome runAccountJob(Session& session, const JobRequest& request,
                                       const JobOutput& output);
[[nodiscard]] JobOutcome runCheckJob(Session& session, const JobOutput& output);
[[nodiscard]] JobOutcome runStatsJob(Session& session, const JobRequest& request,
                                     const JobOutput& output);

} // namespace purrlodge
