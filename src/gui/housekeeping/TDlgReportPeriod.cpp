#include "gui/housekeeping/TDlgReportPeriod.h"

#include <QFormLayout>
#include <QLabel>
#include <QLineEdit>

#include "gui/FieldEdit.h"
#include "gui/PeriodRows.h"

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

    auto* note =
        new QLabel(QStringLiteral("Type the first and last days of the period as dd/mm/yy.\n"
                                  "Accounts are counted by their arrival date;\n"
                                  "both days are included."),
                   this);
    auto* form = new QFormLayout;
    form->addRow(note);
    const PeriodEdits edits = addPeriodRows(*form, dateFieldLimit, initial.from, initial.to, this);
    fromEdit_ = edits.from;
    toEdit_ = edits.to;
    layOutRows(form);
}

ReportPeriod TDlgReportPeriod::period() const
{
    return {fieldText(*fromEdit_), fieldText(*toEdit_)};
}

} // namespace purrlodge
