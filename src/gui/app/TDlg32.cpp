#include "gui/app/TDlg32.h"

#include <QDialogButtonBox>
#include <QLabel>
#include <QPushButton>
#include <QVBoxLayout>

#include "gui/DialogButtons.h"
#include "gui/Text1252.h"

namespace purrlodge {

TDlg32::TDlg32(const std::string& folder, QWidget* parent) : QDialog(parent)
{
    setObjectName(QStringLiteral("newDirectoryDialog"));
    setWindowTitle(QStringLiteral("New Directory"));

    auto* before = new QLabel(QStringLiteral("The directory you have specified:"), this);
    auto* folderLabel = new QLabel(fromWindows1252(folder), this);
    folderLabel->setObjectName(QStringLiteral("folderLabel"));
    folderLabel->setTextFormat(Qt::PlainText);
    folderLabel->setTextInteractionFlags(Qt::TextSelectableByMouse);
    QFont bold = folderLabel->font();
    bold.setBold(true);
    folderLabel->setFont(bold);
    auto* after = new QLabel(QStringLiteral("Does not exist.  Do you wish to create it ?"), this);

    QDialogButtonBox* buttons = newButtonBox(this, QDialogButtonBox::Yes | QDialogButtonBox::No);
    buttons->button(QDialogButtonBox::Yes)->setDefault(true);

    auto* layout = new QVBoxLayout(this);
    layout->addWidget(before);
    layout->addWidget(folderLabel);
    layout->addWidget(after);
    layout->addSpacing(8);
    layout->addWidget(buttons);
    layout->setSizeConstraint(QLayout::SetFixedSize);
}

} // namespace purrlodge
