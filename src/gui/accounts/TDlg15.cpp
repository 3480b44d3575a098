#include "gui/accounts/TDlg15.h"

#include <QDialogButtonBox>
#include <QFormLayout>
#include <QLabel>
#include <QLineEdit>
#include <QVBoxLayout>

#include "gui/FieldEdit.h"

namespace purrlodge {

namespace {

// The number edit takes 7 characters; the field counts its terminator.
constexpr std::size_t numberFieldWidth = 8;

} // namespace

TDlg15::TDlg15(const std::string& offer, AcceptNumber acceptNumber, QWidget* parent)
    : QDialog(parent), acceptNumber_(std::move(acceptNumber))
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

    numberEdit_ = newFieldEdit(QStringLiteral("startingNumberEdit"), numberFieldWidth, this);
    numberEdit_->setAlignment(Qt::AlignRight);
    numberEdit_->setFixedWidth(fontMetrics().horizontalAdvance(QString(9, QLatin1Char('0'))));

    auto* form = new QFormLayout;
    form->addRow(QStringLiteral("&Starting number:"), numberEdit_);

    auto* buttons = new QDialogButtonBox(QDialogButtonBox::Ok | QDialogButtonBox::Cancel, this);
    buttons->setObjectName(QStringLiteral("buttonBox"));
    connect(buttons, &QDialogButtonBox::accepted, this, &TDlg15::accept);
    connect(buttons, &QDialogButtonBox::rejected, this, &QDialog::reject);

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

void TDlg15::accept()
{
    const FormVerdict verdict = acceptNumber_(number());
    if (verdict == FormVerdict::StayOpen)
        return;
    verdict_ = verdict;
    QDialog::accept();
}

} // namespace purrlodge
