#include "gui/housekeeping/TDlg44.h"

#include <QDialogButtonBox>
#include <QLabel>

#include "gui/DialogButtons.h"
#include "gui/FieldEdit.h"
#include "gui/Text1252.h"

namespace purrlodge {

TDlg44::TDlg44(const std::string& text, QWidget* parent) : QDialog(parent)
{
    setObjectName(QStringLiteral("lastBackupDialog"));
    setWindowTitle(QStringLiteral("Last Backup Date"));

    QLabel* label = newStaticLabel(QStringLiteral("lastBackupLabel"), this);
    label->setText(fromWindows1252(text));

    QDialogButtonBox* buttons = newButtonBox(this, QDialogButtonBox::Ok);

    layOutAboveButtons(this, label, buttons);
}

} // namespace purrlodge
