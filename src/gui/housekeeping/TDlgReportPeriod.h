#pragma once

#include "app/commands/PeriodReports.h"
#include "gui/FormDialog.h"
#include "ports/FormVerdict.h"

class QLineEdit;

namespace purrlodge {

// "Client Usage": the first and last days of the period the reports cover,
// typed as dd/mm/yy. OK hands both dates as typed to the rule, whose verdict
// decides whether the dialog closes or stays open as typed.
class TDlgReportPeriod : public FormDialog {
    Q_OBJECT

public:
    TDlgReportPeriod(const ReportPeriod& initial, OkRule<ReportPeriod> onOk,
                     QWidget* parent = nullptr);

    [[nodiscard]] ReportPeriod period() const;

private:
    QLineEdit* fromEdit_;
    QLineEdit* toEdit_;
};

} // namespace purrlodge
