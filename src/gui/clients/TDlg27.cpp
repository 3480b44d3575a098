#include "gui/clients/TDlg27.h"

#include <QDialogButtonBox>
#include <QLabel>
#include <QVBoxLayout>

#include "clients/ClientFormRules.h"
#include "gui/Text1252.h"

namespace purrlodge {

TDlg27::TDlg27(QWidget* parent) : QDialog(parent)
{
    setObjectName(QStringLiteral("newClientHelpDialog"));
    setWindowTitle(fromWindows1252(newClientHelpTitle));

    auto* text = new QLabel(fromWindows1252(newClientHelpText), this);
    text->setObjectName(QStringLiteral("helpTextLabel"));
    text->setTextFormat(Qt::PlainText);
    text->setWordWrap(true);
    text->setMinimumWidth(fontMetrics().averageCharWidth() * 70);

    auto* buttons = new QDialogButtonBox(QDialogButtonBox::Close, this);
    buttons->setObjectName(QStringLiteral("buttonBox"));
    connect(buttons, &QDialogButtonBox::rejected, this, &QDialog::reject);

    auto* layout = new QVBoxLayout(this);
    layout->addWidget(text);
    layout->addSpacing(8);
    layout->addWidget(buttons);
}

} // namespace purrlodge
