#include "gui/PackedRow.h"

#include <QHBoxLayout>

namespace purrlodge {

QHBoxLayout* newPackedRow(std::initializer_list<QWidget*> widgets, QWidget* owner)
{
    auto* row = new QHBoxLayout(owner);
    for (QWidget* widget : widgets)
        row->addWidget(widget);
    row->addStretch(1);
    return row;
}

} // namespace purrlodge
