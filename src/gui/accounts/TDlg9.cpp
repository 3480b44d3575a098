#include "gui/accounts/TDlg9.h"

#include <QDialogButtonBox>
#include <QLabel>

#include "gui/DialogButtons.h"
#include "gui/FieldEdit.h"
#include "gui/Text1252.h"

namespace purrlodge {

TDlg9::TDlg9(const std::string& text, QWidget* parent) : QDialog(parent)
{
    setObjectName(QStringLiteral("discountCalculationDialog"));
    setWindowTitle(QStringLiteral("Discount Calculation"));

    // Static 101.
    QLabel* calculation = newStaticLabel(QStringLiteral("calculationLabel"), this);
    calculation->setText(fromWindows1252(text));
    calculation->setMinimumWidth(fontMetrics().averageCharWidth() * 40);

    QDialogButtonBox* buttons = newButtonBox(this, QDialogButtonBox::Close);

    layOutAboveButtons(this, calculation, buttons);
}

} // namespace purrlodge
