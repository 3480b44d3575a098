#include "gui/FormDialog.h"

#include <QVBoxLayout>

#include "gui/DialogButtons.h"

namespace purrlodge {

FormDialog::FormDialog(Judge judge, QWidget* parent) : QDialog(parent), judge_(std::move(judge))
{}

void FormDialog::layOutRows(QLayout* rows)
{
    QDialogButtonBox* buttons = newButtonBox(this, QDialogButtonBox::Ok | QDialogButtonBox::Cancel);
    auto* layout = new QVBoxLayout(this);
    layout->addLayout(rows);
    layout->addSpacing(8);
    layout->addWidget(buttons);
    layout->setSizeConstraint(QLayout::SetFixedSize);
}

void FormDialog::accept()
{
    const FormVerdict verdict = judge_();
    if (verdict == FormVerdict::StayOpen)
        return;
    verdict_ = verdict;
    QDialog::accept();
}

} // namespace purrlodge
