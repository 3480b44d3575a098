#include "gui/accounts/TDlg23.h"

#include <QCheckBox>
#include <QDialogButtonBox>
#include <QFormLayout>
#include <QHBoxLayout>
#include <QLabel>
#include <QLineEdit>
#include <QVBoxLayout>

#include "gui/FieldEdit.h"

namespace purrlodge {

namespace {

// The rate edit takes 11 characters; the field counts its terminator.
constexpr std::size_t rateFieldWidth = 12;

} // namespace

TDlg23::TDlg23(const ExchangeRateForm& initial, AcceptForm acceptForm, QWidget* parent)
    : QDialog(parent), acceptForm_(std::move(acceptForm))
{
    setObjectName(QStringLiteral("exchangeRateDialog"));
    setWindowTitle(QStringLiteral("Pound/Euro Exchange Rate"));

    pencePerEuroEdit_ = newFieldEdit(QStringLiteral("pencePerEuroEdit"), rateFieldWidth, this);
    pencePerEuroEdit_->setAlignment(Qt::AlignRight);
    pencePerEuroEdit_->setFixedWidth(
        fontMetrics().horizontalAdvance(QString(13, QLatin1Char('0'))));
    // The hint stays in sight: the edit always opens with the stored value.
    auto* hint = new QLabel(QStringLiteral("eg:  62.5"), this);
    hint->setObjectName(QStringLiteral("pencePerEuroHintLabel"));
    hint->setTextFormat(Qt::PlainText);
    auto* rateRow = new QHBoxLayout;
    rateRow->addWidget(pencePerEuroEdit_);
    rateRow->addWidget(hint);
    rateRow->addStretch(1);

    showEurosCheckBox_ = new QCheckBox(QStringLiteral("&Show Euros on Accounts"), this);
    showEurosCheckBox_->setObjectName(QStringLiteral("showEurosCheckBox"));

    auto* form = new QFormLayout;
    form->addRow(QStringLiteral("One &euro is worth (pence):"), rateRow);
    form->addRow(QString(), showEurosCheckBox_);
    if (auto* label = qobject_cast<QLabel*>(form->labelForField(rateRow)))
        label->setBuddy(pencePerEuroEdit_);

    auto* buttons = new QDialogButtonBox(QDialogButtonBox::Ok | QDialogButtonBox::Cancel, this);
    buttons->setObjectName(QStringLiteral("buttonBox"));
    connect(buttons, &QDialogButtonBox::accepted, this, &TDlg23::accept);
    connect(buttons, &QDialogButtonBox::rejected, this, &QDialog::reject);

    auto* layout = new QVBoxLayout(this);
    layout->addLayout(form);
    layout->addSpacing(8);
    layout->addWidget(buttons);
    layout->setSizeConstraint(QLayout::SetFixedSize);

    setFieldText(*pencePerEuroEdit_, initial.pencePerEuro);
    showEurosCheckBox_->setChecked(initial.showEuros);
    pencePerEuroEdit_->setFocus();
    pencePerEuroEdit_->selectAll();
}

ExchangeRateForm TDlg23::form() const
{
    return {fieldText(*pencePerEuroEdit_), showEurosCheckBox_->isChecked()};
}

void TDlg23::accept()
{
    const FormVerdict verdict = acceptForm_(form());
    if (verdict == FormVerdict::StayOpen)
        return;
    verdict_ = verdict;
    QDialog::accept();
}

} // namespace purrlodge
