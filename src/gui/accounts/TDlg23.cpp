#include "gui/accounts/TDlg23.h"

#include <QCheckBox>
#include <QFormLayout>
#include <QHBoxLayout>
#include <QLabel>
#include <QLineEdit>

#include "gui/FieldEdit.h"
#include "gui/PackedRow.h"

namespace purrlodge {

namespace {

// The rate edit takes 11 characters; the field counts its terminator.
constexpr std::size_t rateFieldWidth = 12;

} // namespace

TDlg23::TDlg23(const ExchangeRateForm& initial, AcceptForm acceptForm, QWidget* parent)
    : FormDialog([this, acceptForm = std::move(acceptForm)] { return acceptForm(form()); }, parent)
{
    setObjectName(QStringLiteral("exchangeRateDialog"));
    setWindowTitle(QStringLiteral("Pound/Euro Exchange Rate"));

    pencePerEuroEdit_ = newNumberEdit(QStringLiteral("pencePerEuroEdit"), rateFieldWidth, 13, this);
    // The hint stays in sight: the edit always opens with the stored value.
    auto* hint = new QLabel(QStringLiteral("eg:  62.5"), this);
    hint->setObjectName(QStringLiteral("pencePerEuroHintLabel"));
    hint->setTextFormat(Qt::PlainText);
    QHBoxLayout* rateRow = newPackedRow({pencePerEuroEdit_, hint});

    showEurosCheckBox_ = new QCheckBox(QStringLiteral("&Show Euros on Accounts"), this);
    showEurosCheckBox_->setObjectName(QStringLiteral("showEurosCheckBox"));

    auto* form = new QFormLayout;
    form->addRow(QStringLiteral("One &euro is worth (pence):"), rateRow);
    form->addRow(QString(), showEurosCheckBox_);
    if (auto* label = qobject_cast<QLabel*>(form->labelForField(rateRow)))
        label->setBuddy(pencePerEuroEdit_);

    layOutRows(form);

    setFieldText(*pencePerEuroEdit_, initial.pencePerEuro);
    showEurosCheckBox_->setChecked(initial.showEuros);
    pencePerEuroEdit_->setFocus();
    pencePerEuroEdit_->selectAll();
}

ExchangeRateForm TDlg23::form() const
{
    return {fieldText(*pencePerEuroEdit_), showEurosCheckBox_->isChecked()};
}

} // namespace purrlodge
