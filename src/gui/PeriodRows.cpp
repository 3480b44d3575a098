#include "gui/PeriodRows.h"

#include <QFormLayout>
#include <QLineEdit>

#include "gui/FieldEdit.h"

namespace purrlodge {

PeriodEdits addPeriodRows(QFormLayout& form, std::size_t typedLimit, const std::string& from,
                          const std::string& to, QWidget* parent)
{
    PeriodEdits edits{newFieldEdit(QStringLiteral("fromDateEdit"), typedLimit + 1, parent),
                      newFieldEdit(QStringLiteral("toDateEdit"), typedLimit + 1, parent)};
    const int width = parent->fontMetrics().horizontalAdvance(QStringLiteral("00/00/0000")) * 3 / 2;
    edits.from->setFixedWidth(width);
    edits.to->setFixedWidth(width);
    form.addRow(QStringLiteral("&From"), edits.from);
    form.addRow(QStringLiteral("&To"), edits.to);
    setFieldText(*edits.from, from);
    setFieldText(*edits.to, to);
    edits.from->setFocus();
    edits.from->selectAll();
    return edits;
}

} // namespace purrlodge
