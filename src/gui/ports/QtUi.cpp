#include "gui/ports/QtUi.h"

#include <QApplication>
#include <QMessageBox>

#include "gui/Text1252.h"
#include "gui/accounts/TDlg13.h"
#include "gui/app/TDlg1.h"
#include "gui/app/TDlg11.h"
#include "gui/app/TDlg32.h"

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

QWidget* QtUi::dialogParent() const
{
    if (QWidget* modal = QApplication::activeModalWidget())
        return modal;
    return mainWindow_.data();
}

void QtUi::showMessage(const Message& message)
{
    QMessageBox box(boxIcon(message.icon), fromWindows1252(message.title),
                    fromWindows1252(message.text), QMessageBox::Ok, dialogParent());
    box.setTextFormat(Qt::PlainText); // the program's texts are never markup
    box.exec();
}

std::optional<std::string> QtUi::askDirectorySetup(const std::string& suggestion)
{
    TDlg1 dialog(suggestion, dialogParent());
    if (dialog.exec() != QDialog::Accepted)
        return std::nullopt;
    return dialog.folder();
}

bool QtUi::askDirectoryCheck()
{
    TDlg11 dialog(dialogParent());
    return dialog.exec() == QDialog::Accepted;
}

bool QtUi::askNewDirectory(const std::string& folder)
{
    TDlg32 dialog(folder, dialogParent());
    return dialog.exec() == QDialog::Accepted;
}

std::optional<FormVerdict>
QtUi::runEstablishmentDetails(const EstablishmentForm& initial, const std::string& dataFolder,
                              const std::function<FormVerdict(const EstablishmentForm&)>& accept)
{
    TDlg13 dialog(initial, dataFolder, accept, dialogParent());
    dialog.exec();
    return dialog.verdict();
}

} // namespace purrlodge
