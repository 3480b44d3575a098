#include "gui/accounts/TDlg15.h"

#include <QDialogButtonBox>
#include <QFormLayout>
#include <QLabel>
#include <QLineEdit>
#include <QVBoxLayout>

#include "gui/DialogButtons.h"
#include "gui/FieldEdit.h"

namespace purrlodge {

namespace {

// The number edit takes 7 characters; the field counts its terminator.
constexpr std::size_t numberFieldWidth = 8;

} // namespace

TDlg15::TDlg15(const std::string& offer, AcceptNumber acceptNumber, QWidget* parent)
    : FormDialog([this, acceptNumber = std::move(acceptNumber)] { return acceptNumber(number()); },
                 parent)
{
    setObjectName(QStringLiteral("receiptNumberDialog"));
    setWindowTitle(QStringLiteral("Initial Receipt Number"));

    auto* explanation = new QLabel(
        QStringLiteral("Accounts that you issue will be numbered sequentially.  Please provide the "
                       "starting number.\n\nLeading zeros are not printed - may we suggest you "
                       "start, perhaps, at 1000 ?"),
        this);
    explanation->setObjectName(QStringLiteral("explanationLabel"));
    explanation->setTextFormat(Qt::PlainText);
    explanation->setWordWrap(true);
    explanation->setMinimumWidth(fontMetrics().averageCharWidth() * 56);

    numberEdit_ = newNumberEdit(QStringLiteral("startingNumberEdit"), numberFieldWidth, 9, this);

    auto* form = new QFormLayout;
    form->addRow(QStringLiteral("&Starting number:"), numberEdit_);

    QDialogButtonBox* buttons = newButtonBox(this, QDialogButtonBox::Ok | QDialogButtonBox::Cancel);

    auto* layout = new QVBoxLayout(this);
    layout->addWidget(explanation);
    layout->addSpacing(8);
    layout->addLayout(form);
    layout->addSpacing(8);
    layout->addWidget(buttons);

    setFieldText(*numberEdit_, offer);
    numberEdit_->setFocus();
    numberEdit_->selectAll();
}

std::string TDlg15::number() const
{
    return fieldText(*numberEdit_);
}

} // namespace purrlodge
