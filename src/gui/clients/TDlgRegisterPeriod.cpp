#include "gui/clients/TDlgRegisterPeriod.h"

#include <QFormLayout>
#include <QLineEdit>

#include "gui/FieldEdit.h"

namespace purrlodge {

TDlgRegisterPeriod::TDlgRegisterPeriod(const RegisterPeriod& initial, OkRule<RegisterPeriod> onOk,
                                       QWidget* parent)
    : FormDialog([this, onOk = std::move(onOk)] { return onOk(period()); }, parent)
{
    setObjectName(QStringLiteral("registerPeriodDialog"));
    setWindowTitle(QStringLiteral("Admission Register"));

    // The period's dates are typed as a stay's are.
    fromEdit_ = newFieldEdit(QStringLiteral("fromDateEdit"), stayDateTypedLimit + 1, this);
    toEdit_ = newFieldEdit(QStringLiteral("toDateEdit"), stayDateTypedLimit + 1, this);
    const int width = fontMetrics().horizontalAdvance(QStringLiteral("00/00/0000")) * 3 / 2;
    fromEdit_->setFixedWidth(width);
    toEdit_->setFixedWidth(width);

    auto* form = new QFormLayout;
    form->addRow(QStringLiteral("&From"), fromEdit_);
    form->addRow(QStringLiteral("&To"), toEdit_);
    layOutRows(form);

    setFieldText(*fromEdit_, initial.from);
    setFieldText(*toEdit_, initial.to);
    fromEdit_->setFocus();
    fromEdit_->selectAll();
}

RegisterPeriod TDlgRegisterPeriod::period() const
{
    return {fieldText(*fromEdit_), fieldText(*toEdit_)};
}

} // namespace purrlodge
