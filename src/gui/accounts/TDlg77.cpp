#include "gui/accounts/TDlg77.h"

#include <QDialogButtonBox>
#include <QFormLayout>
#include <QLineEdit>
#include <QVBoxLayout>

#include "gui/FieldEdit.h"

namespace purrlodge {

namespace {

// Both edits take 23 characters; the field counts its terminator.
constexpr std::size_t extraFieldWidth = 24;

} // namespace

TDlg77::TDlg77(const StandardExtraForm& initial, AcceptForm acceptForm, QWidget* parent)
    : QDialog(parent), acceptForm_(std::move(acceptForm))
{
    setObjectName(QStringLiteral("standardExtraDialog"));
    setWindowTitle(QStringLiteral("Set Standard Extra"));

    nameEdit_ = newFieldEdit(QStringLiteral("extraNameEdit"), extraFieldWidth, this);
    nameEdit_->setMinimumWidth(fontMetrics().averageCharWidth() * 36);
    amountEdit_ = newFieldEdit(QStringLiteral("chargeAmountEdit"), extraFieldWidth, this);
    amountEdit_->setAlignment(Qt::AlignRight);
    amountEdit_->setFixedWidth(fontMetrics().horizontalAdvance(QString(11, QLatin1Char('0'))));

    auto* form = new QFormLayout;
    form->addRow(QStringLiteral("&Name of Extra:"), nameEdit_);
    form->addRow(QStringLiteral("Charge &Amount:"), amountEdit_);

    auto* buttons = new QDialogButtonBox(QDialogButtonBox::Ok | QDialogButtonBox::Cancel, this);
    buttons->setObjectName(QStringLiteral("buttonBox"));
    connect(buttons, &QDialogButtonBox::accepted, this, &TDlg77::accept);
    connect(buttons, &QDialogButtonBox::rejected, this, &QDialog::reject);

    auto* layout = new QVBoxLayout(this);
    layout->addLayout(form);
    layout->addSpacing(8);
    layout->addWidget(buttons);
    layout->setSizeConstraint(QLayout::SetFixedSize);

    setFieldText(*nameEdit_, initial.name);
    setFieldText(*amountEdit_, initial.amount);
    nameEdit_->setFocus();
}

StandardExtraForm TDlg77::form() const
{
    return {fieldText(*nameEdit_), fieldText(*amountEdit_)};
}

void TDlg77::accept()
{
    const FormVerdict verdict = acceptForm_(form());
    if (verdict == FormVerdict::StayOpen)
        return;
    verdict_ = verdict;
    QDialog::accept();
}

} // namespace purrlodge
