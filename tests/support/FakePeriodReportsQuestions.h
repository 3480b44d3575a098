#pragma once

#include <deque>
#include <vector>

#include "app/commands/PeriodReports.h"

namespace purrlodge::testing {

// Types the scripted periods one OK at a time (Cancel when they run out),
// keeps the reports shown and prints the scripted ones from them.
struct FakePeriodReportsQuestions : PeriodReportsQuestions {
    std::optional<FormVerdict> fillReportPeriod(const ReportPeriod& initial,
                                                const OkRule<ReportPeriod>& onOk) override
    {
        initialPeriod = initial;
        while (!periods.empty()) {
            const ReportPeriod typed = periods.front();
            periods.pop_front();
            const FormVerdict verdict = onOk(typed);
            if (verdict != FormVerdict::StayOpen)
                return verdict;
        }
        return std::nullopt;
    }

    void showPeriodReports(const PeriodReportsView& view,
                           const std::function<void(PeriodReport)>& print) override
    {
        shown.push_back(view);
        for (PeriodReport report : toPrint)
            print(report);
    }

    std::deque<ReportPeriod> periods;
    std::vector<PeriodReport> toPrint;
    ReportPeriod initialPeriod;
    std::vector<PeriodReportsView> shown;
};

} // namespace purrlodge::testing
