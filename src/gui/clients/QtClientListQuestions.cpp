#include "gui/clients/QtClientListQuestions.h"

#include "gui/FrontWindow.h"
#include "gui/clients/TDlgClientList.h"
#include "gui/clients/TDlgClientListChoice.h"

namespace purrlodge {

void QtClientListQuestions::showClientList(ClientListChoice initial, const ListFor& listFor,
                                           const PrintList& print)
{
    TDlgClientList dialog(initial, listFor, print, frontWindow(mainWindow_));
    dialog.exec();
}

std::optional<ClientListChoice> QtClientListQuestions::chooseClientList(ClientListChoice initial)
{
    TDlgClientListChoice dialog(initial, frontWindow(mainWindow_));
    if (dialog.exec() != QDialog::Accepted)
        return std::nullopt;
    return dialog.choice();
}

} // namespace purrlodge
