#include "gui/DialogButtons.h"

#include <QDialog>
#include <QPushButton>
#include <QShortcut>
#include <QVBoxLayout>

namespace purrlodge {

QDialogButtonBox* newButtonBox(QDialog* dialog, QDialogButtonBox::StandardButtons buttons)
{
    auto* box = new QDialogButtonBox(buttons, dialog);
    box->setObjectName(QStringLiteral("buttonBox"));
    QObject::connect(box, &QDialogButtonBox::accepted, dialog, &QDialog::accept);
    QObject::connect(box, &QDialogButtonBox::rejected, dialog, &QDialog::reject);
    return box;
}

void connectHelp(QDialog* dialog, QDialogButtonBox* buttons, const std::function<void()>& showHelp)
{
    if (QPushButton* help = buttons->button(QDialogButtonBox::Help))
        help->setAutoDefault(false);
    QObject::connect(buttons, &QDialogButtonBox::helpRequested, dialog, showHelp);
    QObject::connect(new QShortcut(QKeySequence::HelpContents, dialog), &QShortcut::activated,
                     dialog, showHelp);
}

void layOutAboveButtons(QDialog* dialog, QWidget* content, QDialogButtonBox* buttons)
{
    auto* layout = new QVBoxLayout(dialog);
    layout->addWidget(content);
    layout->addSpacing(8);
    layout->addWidget(buttons);
    layout->setSizeConstraint(QLayout::SetFixedSize);
}

} // namespace purrlodge
