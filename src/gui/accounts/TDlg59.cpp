#include "gui/accounts/TDlg59.h"

#include <QFormLayout>
#include <QLineEdit>
#include <QRegularExpressionValidator>

#include "gui/FieldEdit.h"

namespace purrlodge {

namespace {

// A receipt number of up to nine digits.
constexpr std::size_t numberFieldWidth = 10;

} // namespace

TDlg59::TDlg59(const OkRule<std::string>& onOk, QWidget* parent)
    : FormDialog([this, onOk] { return onOk(fieldText(*numberEdit_)); }, parent)
{
    setObjectName(QStringLiteral("findNumberedAccountDialog"));
    setWindowTitle(QStringLiteral("Find Numbered Account"));

    numberEdit_ = newNumberEdit(QStringLiteral("accountNumberEdit"), numberFieldWidth, 10, this);
    numberEdit_->setValidator(
        new QRegularExpressionValidator(QRegularExpression(QStringLiteral("[0-9]*")), numberEdit_));

    auto* form = new QFormLayout;
    form->addRow(QStringLiteral("Account &Number:"), numberEdit_);
    layOutRows(form);

    numberEdit_->setFocus();
}

} // namespace purrlodge
