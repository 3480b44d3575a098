#include "app/jobs/UnattendedJobs.h"

#include "app/Session.h"
#include "app/jobs/JobDataSet.h"

namespace purrlodge {

JobOutcome runJob(const JobRequest& request, Ports ports, const JobOutput& output)
{
    Session session(ports, std::string());
    const DataSetUse use =
        request.kind == JobKind::Check ? DataSetUse::FolderOnly : DataSetUse::Records;
    if (std::optional<JobOutcome> refusal = openJobDataSet(session, request.dataFolder, use))
        return std::move(*refusal);
    output.progress("Data folder: " + session.folder.path());
    switch (request.kind) {
    case JobKind::Backup:
        return runBackupJob(session, request, output);
    case JobKind::ExportAddresses:
    case JobKind::ExportEmails:
        return runExportJob(session, request, output);
    case JobKind::Account:
        return runAccountJob(session, request, output);
    case JobKind::Check:
        return runCheckJob(session, output);
    case JobKind::Stats:
        return runStatsJob(session, request, output);
    }
    return {jobExit::failed, "unknown job"};
}

} // namespace purrlodge
