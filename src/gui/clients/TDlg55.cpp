#include "gui/clients/TDlg55.h"

#include <QDialogButtonBox>
#include <QLabel>
#include <QVBoxLayout>

#include "clients/CatNameChange.h"
#include "gui/Text1252.h"

namespace purrlodge {

TDlg55::TDlg55(QWidget* parent) : QDialog(parent)
{
    setObjectName(QStringLiteral("catNameChangeHelpDialog"));
    setWindowTitle(fromWindows1252(catNameChangeHelpTitle));

    auto* text = new QLabel(fromWindows1252(catNameChangeHelpText), this);
    text->setObjectName(QStringLiteral("helpTextLabel"));
    text->setTextFormat(Qt::PlainText);
    text->setWordWrap(true);
    text->setMinimumWidth(fontMetrics().averageCharWidth() * 60);

    auto* buttons = new QDialogButtonBox(QDialogButtonBox::Close, this);
    buttons->setObjectName(QStringLiteral("buttonBox"));
    connect(buttons, &QDialogButtonBox::rejected, this, &QDialog::reject);

    auto* layout = new QVBoxLayout(this);
    layout->addWidget(text);
    layout->addSpacing(8);
    layout->addWidget(buttons);
}

} // namespace purrlodge
