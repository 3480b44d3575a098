#include "gui/clients/TDlg16.h"

#include <QDialogButtonBox>
#include <QLabel>
#include <QPushButton>
#include <QVBoxLayout>

#include "clients/ClientFormQuestions.h"
#include "gui/DialogButtons.h"
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

    QDialogButtonBox* buttons = newButtonBox(
        this, choice == Choice::Close ? QDialogButtonBox::Close
                                      : QDialogButtonBox::Ok | QDialogButtonBox::Cancel);
    if (choice != Choice::Close) {
        buttons->button(QDialogButtonBox::Ok)->setText(QStringLiteral("C&ontinue"));
        buttons->button(QDialogButtonBox::Ok)->setDefault(true);
    }

    auto* layout = new QVBoxLayout(this);
    layout->addWidget(message);
    layout->addWidget(detail);
    layout->addSpacing(8);
    layout->addWidget(buttons);
    layout->setSizeConstraint(QLayout::SetFixedSize);
}

} // namespace purrlodge
