#include "gui/app/TDlg58.h"

#include <QDialogButtonBox>
#include <QLabel>

#include "gui/DialogButtons.h"
#include "gui/Text1252.h"

namespace purrlodge {

TDlg58::TDlg58(const std::string& folder, QWidget* parent) : QDialog(parent)
{
    setObjectName(QStringLiteral("directoryErrorDialog"));
    setWindowTitle(QStringLiteral("Directory Error"));

    auto* text =
        new QLabel(QStringLiteral("The Directory %1 does not seem to exist\nPlease try again!")
                       .arg(fromWindows1252(folder)),
                   this);
    text->setObjectName(QStringLiteral("messageLabel"));
    text->setTextFormat(Qt::PlainText);

    QDialogButtonBox* buttons = newButtonBox(this, QDialogButtonBox::Ok);

    layOutAboveButtons(this, text, buttons);
}

} // namespace purrlodge
