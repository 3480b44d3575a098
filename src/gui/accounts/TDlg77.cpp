#include "gui/accounts/TDlg77.h"

#include <QFormLayout>
#include <QLineEdit>

#include "gui/FieldEdit.h"

namespace purrlodge {

namespace {

// Both edits take 23 characters; the field counts its terminator.
constexpr std::size_t extraFieldWidth = 24;

} // namespace

TDlg77::TDlg77(const StandardExtraForm& initial, AcceptForm acceptForm, QWidget* parent)
    : FormDialog([this, acceptForm = std::move(acceptForm)] { return acceptForm(form()); }, parent)
{
    setObjectName(QStringLiteral("standardExtraDialog"));
    setWindowTitle(QStringLiteral("Set Standard Extra"));

    nameEdit_ = newFieldEdit(QStringLiteral("extraNameEdit"), extraFieldWidth, this);
    nameEdit_->setMinimumWidth(fontMetrics().averageCharWidth() * 36);
    amountEdit_ = newNumberEdit(QStringLiteral("chargeAmountEdit"), extraFieldWidth, 11, this);

    auto* form = new QFormLayout;
    form->addRow(QStringLiteral("&Name of Extra:"), nameEdit_);
    form->addRow(QStringLiteral("Charge &Amount:"), amountEdit_);

    layOutRows(form);

    setFieldText(*nameEdit_, initial.name);
    setFieldText(*amountEdit_, initial.amount);
    nameEdit_->setFocus();
}

StandardExtraForm TDlg77::form() const
{
    return {fieldText(*nameEdit_), fieldText(*amountEdit_)};
}

} // namespace purrlodge
