#pragma once

#include <array>
#include <functional>
#include <optional>
#include <string>
#include <vector>

#include "housekeeping/PeriodReportTables.h"
#include "housekeeping/PeriodReports.h"
#include "housekeeping/ReportPeriod.h"
#include "ports/FormVerdict.h"

namespace purrlodge {

class Session;

// The three period reports as the person sees them.
struct PeriodReportsView {
    std::string period; // "01/01/25 to 31/12/25"
    PeriodFigures figures;
    // By PeriodReport: the tables each report shows and prints.
    std::array<std::vector<ReportTable>, 3> tables;
};

// The questions of Special Operations | Client Usage.
class PeriodReportsQuestions {
public:
    virtual ~PeriodReportsQuestions() = default;

    // The period, starting as `initial`; `onOk` is called at each OK. The
    // closing verdict, nothing on Cancel.
    virtual std::optional<FormVerdict> fillReportPeriod(const ReportPeriod& initial,
                                                        const OkRule<ReportPeriod>& onOk) = 0;

    // Shows the reports until the person closes them; `print` prints one.
    virtual void showPeriodReports(const PeriodReportsView& view,
                                   const std::function<void(PeriodReport)>& print) = 0;
};

// The figures of an accepted period (its dates checked), as the rates charge:
// by the day or by the night.
[[nodiscard]] PeriodFigures figuresOfPeriod(const Session& session, const ReportPeriod& period);

// Special Operations | Client Usage (11874): the period asked for (this
// year so far to start with), then the financial summary, the days-use
// summary and the client usage of the accounts that arrived in it, each
// shown and printed on request.
void showClientUsage(Session& session, PeriodReportsQuestions& questions);

// Prints one report's pages, one job per page titled after the report.
// Whether every page printed.
bool printPeriodReport(Session& session, const PeriodReportsView& view, PeriodReport report);

} // namespace purrlodge
