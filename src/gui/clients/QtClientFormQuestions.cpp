#include "gui/clients/QtClientFormQuestions.h"

#include <QApplication>

#include "gui/clients/TDlg16.h"
#include "gui/clients/TDlg5.h"
#include "gui/clients/TDlg50.h"
#include "gui/clients/TDlg51.h"

namespace purrlodge {

QWidget* QtClientFormQuestions::dialogParent() const
{
    if (QWidget* modal = QApplication::activeModalWidget())
        return modal;
    return fallbackParent_.data();
}

bool QtClientFormQuestions::confirmSurnameChange()
{
    TDlg5 dialog(dialogParent());
    return dialog.exec() == QDialog::Accepted;
}

bool QtClientFormQuestions::continueDespiteBirthYear(const DateWarning& warning)
{
    TDlg16 dialog(warning, TDlg16::Choice::ContinueOrCancel, dialogParent());
    return dialog.exec() == QDialog::Accepted;
}

void QtClientFormQuestions::showDateWarning(const DateWarning& warning)
{
    TDlg16 dialog(warning, TDlg16::Choice::Close, dialogParent());
    dialog.exec();
}

std::optional<LeavingCatAnswer> QtClientFormQuestions::askWhyCatLeft(const std::string& catName)
{
    TDlg50 dialog(catName, dialogParent());
    if (dialog.exec() != QDialog::Accepted)
        return std::nullopt;
    return dialog.answer();
}

CatNameChoice QtClientFormQuestions::askCatNameChange(const std::string& oldName,
                                                      const std::string& newName)
{
    TDlg51 dialog(oldName, newName, dialogParent());
    dialog.exec();
    return dialog.choice();
}

} // namespace purrlodge
