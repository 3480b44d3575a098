#include "gui/clients/TDlg16.h"

#include <QDialogButtonBox>
#include <QLabel>
#include <QPushButton>
#include <QVBoxLayout>

#include "clients/ClientFormQuestions.h"
#include "gui/Text1252.h"

namespace purrlodge {

TDlg16::TDlg16(const DateWarning& warning, Choice choice, QWidget* parent) : QDialog(parent)
{
    setObjectName(QStringLiteral("dateWarningDialog"));
    setWindowTitle(fromWindows1252(warning.title));

    // Static 101: what is wrong; static 102: which date.
    auto* message = new QLabel(fromWindows1252(warning.message), this);
    message->setObjectName(QStringLiteral("messageLabel"));
    message->setTextFormat(Qt::PlainText);
    QFont bold = message->font();
    bold.setBold(true);
    message->setFont(bold);
    message->setMinimumWidth(fontMetrics().averageCharWidth() * 40);
    auto* detail = new QLabel(fromWindows1252(warning.detail), this);
    detail->setObjectName(QStringLiteral("detailLabel"));
    detail->setTextFormat(Qt::PlainText);

    auto* buttons = new QDialogButtonBox(this);
    buttons->setObjectName(QStringLiteral("buttonBox"));
    if (choice == Choice::Close) {
        buttons->setStandardButtons(QDialogButtonBox::Close);
    } else {
        buttons->setStandardButtons(QDialogButtonBox::Ok | QDialogButtonBox::Cancel);
        buttons->button(QDialogButtonBox::Ok)->setText(QStringLiteral("C&ontinue"));
        buttons->button(QDialogButtonBox::Ok)->setDefault(true);
    }
    connect(buttons, &QDialogButtonBox::accepted, this, &QDialog::accept);
    connect(buttons, &QDialogButtonBox::rejected, this, &QDialog::reject);

    auto* layout = new QVBoxLayout(this);
    layout->addWidget(message);
    layout->addWidget(detail);
    layout->addSpacing(8);
    layout->addWidget(buttons);
    layout->setSizeConstraint(QLayout::SetFixedSize);
}

} // namespace purrlodge
