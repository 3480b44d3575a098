#include "gui/clients/TDlgRegisterPeriod.h"

#include <QFormLayout>
#include <QLineEdit>

#include "gui/FieldEdit.h"
#include "gui/PeriodRows.h"

namespace purrlodge {

TDlgRegisterPeriod::TDlgRegisterPeriod(const RegisterPeriod& initial, OkRule<RegisterPeriod> onOk,
                                       QWidget* parent)
    : FormDialog([this, onOk = std::move(onOk)] { return onOk(period()); }, parent)
{
    setObjectName(QStringLiteral("registerPeriodDialog"));
    setWindowTitle(QStringLiteral("Admission Register"));

    // The period's dates are typed as a stay's are.
    auto* form = new QFormLayout;
    const PeriodEdits edits =
        addPeriodRows(*form, stayDateTypedLimit, initial.from, initial.to, this);
    fromEdit_ = edits.from;
    toEdit_ = edits.to;
    layOutRows(form);
}

RegisterPeriod TDlgRegisterPeriod::period() const
{
    return {fieldText(*fromEdit_), fieldText(*toEdit_)};
}

} // namespace purrlodge
