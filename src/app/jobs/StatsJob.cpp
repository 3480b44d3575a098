#include "app/Session.h"
#include "app/commands/PeriodReports.h"
#include "app/jobs/JobUi.h"
#include "app/jobs/UnattendedJobs.h"
#include "housekeeping/PeriodFiguresCsv.h"

namespace purrlodge {

JobOutcome runStatsJob(Session& session, const JobRequest& request, const JobOutput& output)
{
    ReportPeriod period{request.from, request.to};
    if (const std::optional<Message> error = reportPeriodError(period, session.currentYear))
        return {jobExit::usage, oneLine(*error)};
    output.progress("Period " + period.from + " to " + period.to);
    const std::string csv = periodFiguresCsv(figuresOfPeriod(session, period));
    for (std::size_t start = 0; start < csv.size();) {
        const std::size_t end = csv.find('\n', start);
        output.result(std::string_view(csv).substr(start, end - start));
        start = end + 1;
    }
    return {};
}

} // namespace purrlodge
