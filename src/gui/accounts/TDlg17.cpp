#include "gui/accounts/TDlg17.h"

#include <QDialogButtonBox>
#include <QLabel>
#include <QPushButton>

#include "gui/DialogButtons.h"
#include "gui/FieldEdit.h"
#include "gui/Text1252.h"

namespace purrlodge {

TDlg17::TDlg17(const std::string& question, QWidget* parent) : QDialog(parent)
{
    setObjectName(QStringLiteral("longStayDialog"));
    setWindowTitle(QStringLiteral("Long Stay Query"));

    QLabel* text = newStaticLabel(QStringLiteral("questionLabel"), this);
    text->setText(fromWindows1252(question));
    QFont bold = text->font();
    bold.setBold(true);
    text->setFont(bold);
    text->setMinimumWidth(fontMetrics().averageCharWidth() * 30);

    QDialogButtonBox* buttons = newButtonBox(this, QDialogButtonBox::Ok | QDialogButtonBox::Cancel);
    QPushButton* right = buttons->button(QDialogButtonBox::Ok);
    right->setText(QStringLiteral("&Right"));
    right->setObjectName(QStringLiteral("rightButton"));
    QPushButton* wrong = buttons->button(QDialogButtonBox::Cancel);
    wrong->setText(QStringLiteral("&Wrong"));
    wrong->setObjectName(QStringLiteral("wrongButton"));
    // A stray Return goes back to the dates rather than printing the account.
    wrong->setDefault(true);

    layOutAboveButtons(this, text, buttons);
}

} // namespace purrlodge
