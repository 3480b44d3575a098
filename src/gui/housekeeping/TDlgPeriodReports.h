#pragma once

#include <functional>

#include <QDialog>

#include "app/commands/PeriodReports.h"

class QTabWidget;

namespace purrlodge {

class BarChart;

// The period reports on screen: a tab for each of the financial summary,
// the days-use summary and the client usage, each with its chart, its
// tables and a Print button that prints that report.
class TDlgPeriodReports : public QDialog {
    Q_OBJECT

public:
    TDlgPeriodReports(const PeriodReportsView& view, std::function<void(PeriodReport)> print,
                      QWidget* parent = nullptr);

private:
    QWidget* newReportTab(const PeriodReportsView& view, PeriodReport report);

    std::function<void(PeriodReport)> print_;
    QTabWidget* tabs_;
};

} // namespace purrlodge
