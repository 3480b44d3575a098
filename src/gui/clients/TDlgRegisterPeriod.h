#pragma once

#include "app/commands/ArrivalSheet.h"
#include "gui/FormDialog.h"
#include "ports/FormVerdict.h"

class QLineEdit;

namespace purrlodge {

// "Admission Register": the first and last days of the period whose
// arrivals the register lists. OK hands both dates as typed to the rule,
// whose verdict decides whether the dialog closes or stays open as typed.
class TDlgRegisterPeriod : public FormDialog {
    Q_OBJECT

public:
    TDlgRegisterPeriod(const RegisterPeriod& initial, OkRule<RegisterPeriod> onOk,
                       QWidget* parent = nullptr);

    [[nodiscard]] RegisterPeriod period() const;

private:
    QLineEdit* fromEdit_;
    QLineEdit* toEdit_;
};

} // namespace purrlodge
