#include "gui/housekeeping/TDlgReportPeriod.h"

#include <QFormLayout>
#include <QLabel>
#include <QLineEdit>

#include "gui/FieldEdit.h"

namespace purrlodge {

namespace {

// As long as a date field of a record, the terminator aside.
constexpr std::size_t dateFieldLimit = 24;

} // namespace

TDlgReportPeriod::TDlgReportPeriod(const ReportPeriod& initial, OkRule<ReportPeriod> onOk,
                                   QWidget* parent)
    : FormDialog([this, onOk = std::move(onOk)] { return onOk(period()); }, parent)
{
    setObjectName(QStringLiteral("reportPeriodDialog"));
    setWindowTitle(QStringLiteral("Client Usage"));

    fromEdit_ = newFieldEdit(QStringLiteral("fromDateEdit"), dateFieldLimit + 1, this);
    toEdit_ = newFieldEdit(QStringLiteral("toDateEdit"), dateFieldLimit + 1, this);
    const int width = fontMetrics().horizontalAdvance(QStringLiteral("00/00/0000")) * 3 / 2;
    fromEdit_->setFixedWidth(width);
    toEdit_->setFixedWidth(width);

    auto* note =
        new QLabel(QStringLiteral("Type the first and last days of the period as dd/mm/yy.\n"
                                  "Accounts are counted by their arrival date;\n"
                                  "both days are included."),
                   this);
    auto* form = new QFormLayout;
    form->addRow(note);
    form->addRow(QStringLiteral("&From"), fromEdit_);
    form->addRow(QStringLiteral("&To"), toEdit_);
    layOutRows(form);

    setFieldText(*fromEdit_, initial.from);
    setFieldText(*toEdit_, initial.to);
    fromEdit_->setFocus();
    fromEdit_->selectAll();
}

ReportPeriod TDlgReportPeriod::period() const
{
    return {fieldText(*fromEdit_), fieldText(*toEdit_)};
}

} // namespace purrlodge
