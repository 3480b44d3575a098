#include "gui/ports/QtUi.h"

#include <QMessageBox>

#include "gui/FrontWindow.h"
#include "gui/Text1252.h"

namespace purrlodge {

namespace {

QMessageBox::Icon boxIcon(MessageIcon icon)
{
    switch (icon) {
    case MessageIcon::Information:
        return QMessageBox::Information;
    case MessageIcon::Exclamation:
        return QMessageBox::Warning;
    case MessageIcon::Question:
        return QMessageBox::Question;
    case MessageIcon::Stop:
        return QMessageBox::Critical;
    case MessageIcon::None:
        break;
    }
    return QMessageBox::NoIcon;
}

} // namespace

void showMessageBox(const Message& message, QWidget* parent)
{
    QMessageBox box(boxIcon(message.icon), fromWindows1252(message.title),
                    fromWindows1252(message.text), QMessageBox::Ok, parent);
    box.setTextFormat(Qt::PlainText); // the program's texts are never markup
    box.exec();
}

void QtUi::showMessage(const Message& message)
{
    showMessageBox(message, frontWindow(mainWindow_));
}

} // namespace purrlodge
