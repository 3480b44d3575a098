#include "gui/accounts/TDlg47.h"

#include <QDialogButtonBox>
#include <QFormLayout>
#include <QLineEdit>
#include <QPushButton>
#include <QVBoxLayout>

#include "accounts/AccountRecord.h"
#include "gui/DialogButtons.h"
#include "gui/FieldEdit.h"

namespace purrlodge {

namespace {

// A date takes what the account's date field holds.
constexpr std::size_t dateFieldWidth = sizeof(AccountRecord::arrivalDate);

} // namespace

TDlg47::TDlg47(const std::string& arrival, const std::string& departure,
               RegisterDates registerDates, QWidget* parent)
    : FormDialog(
          [this, registerDates = std::move(registerDates)] {
              return registerDates(fieldText(*arrivalEdit_), fieldText(*departureEdit_));
          },
          parent)
{
    setObjectName(QStringLiteral("newDatesDialog"));
    setWindowTitle(QStringLiteral("New Dates for Account"));

    arrivalEdit_ = newFieldEdit(QStringLiteral("arrivalDateEdit"), dateFieldWidth, this);
    departureEdit_ = newFieldEdit(QStringLiteral("departureDateEdit"), dateFieldWidth, this);
    const int width = fontMetrics().horizontalAdvance(QStringLiteral("00/00/0000")) * 3 / 2;
    arrivalEdit_->setFixedWidth(width);
    departureEdit_->setFixedWidth(width);

    auto* form = new QFormLayout;
    form->addRow(QStringLiteral("&Arrival Date"), arrivalEdit_);
    form->addRow(QStringLiteral("&Departure Date"), departureEdit_);

    QDialogButtonBox* buttons = newButtonBox(this, QDialogButtonBox::Ok | QDialogButtonBox::Cancel);
    buttons->button(QDialogButtonBox::Ok)->setText(QStringLiteral("&Register Change"));
    buttons->button(QDialogButtonBox::Ok)->setDefault(true);

    auto* layout = new QVBoxLayout(this);
    layout->addLayout(form);
    layout->addSpacing(8);
    layout->addWidget(buttons);
    layout->setSizeConstraint(QLayout::SetFixedSize);

    setFieldText(*arrivalEdit_, arrival);
    setFieldText(*departureEdit_, departure);
    arrivalEdit_->setFocus();
    arrivalEdit_->selectAll();
}

} // namespace purrlodge
