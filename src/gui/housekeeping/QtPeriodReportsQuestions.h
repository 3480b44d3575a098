#pragma once

#include <QPointer>
#include <QWidget>

#include "app/commands/PeriodReports.h"

namespace purrlodge {

// The period reports' questions answered with their dialogs, each modal over
// the window in front.
class QtPeriodReportsQuestions : public PeriodReportsQuestions {
public:
    // mainWindow: the owner of the dialogs when no other dialog is open.
    explicit QtPeriodReportsQuestions(QWidget* mainWindow) : mainWindow_(mainWindow) {}

    std::optional<FormVerdict> fillReportPeriod(const ReportPeriod& initial,
                                                const OkRule<ReportPeriod>& onOk) override;
    void showPeriodReports(const PeriodReportsView& view,
                           const std::function<void(PeriodReport)>& print) override;

private:
    QPointer<QWidget> mainWindow_;
};

} // namespace purrlodge
