#include "gui/housekeeping/QtPeriodReportsQuestions.h"

#include "gui/FrontWindow.h"
#include "gui/housekeeping/TDlgPeriodReports.h"
#include "gui/housekeeping/TDlgReportPeriod.h"

namespace purrlodge {

std::optional<FormVerdict>
QtPeriodReportsQuestions::fillReportPeriod(const ReportPeriod& initial,
                                           const OkRule<ReportPeriod>& onOk)
{
    TDlgReportPeriod dialog(initial, onOk, frontWindow(mainWindow_));
    dialog.exec();
    return dialog.verdict();
}

void QtPeriodReportsQuestions::showPeriodReports(const PeriodReportsView& view,
                                                 const std::function<void(PeriodReport)>& print)
{
    TDlgPeriodReports dialog(view, print, frontWindow(mainWindow_));
    dialog.exec();
}

} // namespace purrlodge
