#include "app/Session.h"
#include "app/jobs/UnattendedJobs.h"
#include "housekeeping/DataSetCheck.h"

namespace purrlodge {

JobOutcome runCheckJob(Session& session, const JobOutput& output)
{
    const std::vector<DataSetFinding> findings = checkDataSet(session.folder);
    for (const DataSetFinding& finding : findings)
        output.result(finding.file + ": " + finding.damage);
    if (findings.empty()) {
        output.progress("No damage found in " + session.folder.path());
        return {};
    }
    return {jobExit::damageFound, std::to_string(findings.size()) +
                                      (findings.size() == 1 ? " finding" : " findings") + " in " +
                                      session.folder.path()};
}

} // namespace purrlodge
