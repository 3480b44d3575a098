#include "app/commands/PeriodReports.h"

#include "accounts/FeeCalculation.h"
#include "app/Session.h"
#include "print/PrinterJobs.h"
#include "store/Dates.h"

namespace purrlodge {

bool printPeriodReport(Session& session, const PeriodReportsView& view, PeriodReport report)
{
    const PeriodReportPages pages(std::string(periodReportTitle(report)),
                                  session.establishment.name.str(), view.period,
                                  view.tables[static_cast<std::size_t>(report)]);
    PrinterJobs printer(session.ports.printer);
    CommandJobs jobs(printer, session.printDialog);
    bool printed = true;
    for (int page = 0; printed && page < pages.pageCount(); ++page) {
        pages.fillPage(session.printBuffer, page);
        printed = jobs.run(pages.title(), session.printBuffer);
    }
    tellWherePrintoutsWent(session.ports.printer, session.ports.ui);
    return printed;
}

PeriodFigures figuresOfPeriod(const Session& session, const ReportPeriod& period)
{
    return gatherPeriodFigures(session.folder, session.index, dateToNumber(period.from),
                               dateToNumber(period.to), session.rates.perDay.get() == 0);
}

void showClientUsage(Session& session, PeriodReportsQuestions& questions)
{
    ReportPeriod accepted;
    const std::optional<FormVerdict> verdict = questions.fillReportPeriod(
        thisYearSoFar(session.ports.clock), [&](const ReportPeriod& typed) {
            ReportPeriod period = typed;
            if (const std::optional<Message> error =
                    reportPeriodError(period, session.currentYear)) {
                session.ports.ui.showMessage(*error);
                return FormVerdict::StayOpen;
            }
            accepted = period;
            return FormVerdict::Accept;
        });
    if (verdict != FormVerdict::Accept)
        return;

    PeriodReportsView view;
    view.period = accepted.from + " to " + accepted.to;
    view.figures = figuresOfPeriod(session, accepted);
    const unsigned char sign = currencySign(session.rates.currency.get());
    for (PeriodReport report :
         {PeriodReport::FinancialSummary, PeriodReport::DaysUse, PeriodReport::ClientUsage})
        view.tables[static_cast<std::size_t>(report)] =
            periodReportTables(report, view.figures, sign);
    questions.showPeriodReports(
        view, [&](PeriodReport report) { printPeriodReport(session, view, report); });
}

} // namespace purrlodge
