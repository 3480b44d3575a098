#include "gui/housekeeping/TDlg49.h"

#include <QDialogButtonBox>
#include <QLabel>
#include <QPushButton>

#include "gui/DialogButtons.h"
#include "gui/FieldEdit.h"
#include "gui/Text1252.h"

namespace purrlodge {

TDlg49::TDlg49(const std::string& text, QWidget* parent) : QDialog(parent)
{
    setObjectName(QStringLiteral("badFloppyDialog"));
    setWindowTitle(QStringLiteral("Bad Floppy!"));

    QLabel* label = newStaticLabel(QStringLiteral("badFloppyLabel"), this);
    label->setText(fromWindows1252(text));
    label->setWordWrap(true);
    label->setMinimumWidth(fontMetrics().averageCharWidth() * 56);

    QDialogButtonBox* buttons = newButtonBox(this, QDialogButtonBox::Ok | QDialogButtonBox::Cancel);
    QPushButton* inserted = buttons->button(QDialogButtonBox::Ok);
    inserted->setText(QStringLiteral("&I have inserted a new disc"));
    inserted->setObjectName(QStringLiteral("newDiscButton"));
    inserted->setDefault(true);

    layOutAboveButtons(this, label, buttons);
}

} // namespace purrlodge
