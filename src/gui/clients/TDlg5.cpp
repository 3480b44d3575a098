#include "gui/clients/TDlg5.h"

#include <QDialogButtonBox>
#include <QLabel>
#include <QPushButton>
#include <QVBoxLayout>

#include "clients/ClientFormQuestions.h"
#include "gui/DialogButtons.h"
#include "gui/Text1252.h"

namespace purrlodge {

TDlg5::TDlg5(QWidget* parent) : QDialog(parent)
{
    setObjectName(QStringLiteral("surnameAlertDialog"));
    setWindowTitle(fromWindows1252(surnameAlertTitle));

    auto* first = new QLabel(fromWindows1252(surnameAlertLine1), this);
    first->setObjectName(QStringLiteral("alertLabel"));
    auto* second = new QLabel(fromWindows1252(surnameAlertLine2), this);
    second->setObjectName(QStringLiteral("questionLabel"));

    QDialogButtonBox* buttons = newButtonBox(this, QDialogButtonBox::Yes | QDialogButtonBox::No);
    buttons->button(QDialogButtonBox::Yes)->setText(QStringLiteral("&YES"));
    buttons->button(QDialogButtonBox::No)->setText(QStringLiteral("&No"));
    // The change is saved at once, so a stray Return keeps the old surname.
    buttons->button(QDialogButtonBox::No)->setDefault(true);

    auto* layout = new QVBoxLayout(this);
    layout->addWidget(first);
    layout->addWidget(second);
    layout->addSpacing(8);
    layout->addWidget(buttons);
    layout->setSizeConstraint(QLayout::SetFixedSize);
}

} // namespace purrlodge
