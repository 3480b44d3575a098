#include "app/Session.h"
#include "app/jobs/UnattendedJobs.h"
#include "housekeeping/EmailFile.h"
#include "housekeeping/TextFile.h"

namespace purrlodge {

JobOutcome runExportJob(Session& session, const JobRequest& request, const JobOutput& output)
{
    const bool addresses = request.kind == JobKind::ExportAddresses;
    const std::string_view name = addresses ? addressFileName : emailFileName;
    const ExportText file = addresses
                                ? addressFileText(session.folder, session.index, request.labelStyle)
                                : emailFileText(session.folder, session.index);
    if (!writeTextFile(session.folder, name, file.text))
        return {jobExit::failed, session.folder.fileName(name) + " could not be written"};
    const std::string path = session.folder.fileName(name);
    output.result(addresses ? std::to_string(file.count) + " names and addresses written to " + path
                            : std::to_string(file.count) + " email addresses written to " + path);
    return {};
}

} // namespace purrlodge
