#include "gui/clients/ClientCommands.h"

#include "app/CommandIds.h"
#include "app/Session.h"
#include "clients/ClientFormRules.h"
#include "gui/app/TMyWindow.h"
#include "gui/clients/QtClientFormQuestions.h"
#include "gui/clients/TDlg3.h"

namespace purrlodge {

namespace {

// Runs the form until it is saved (true) or cancelled (false).
bool runClientForm(QWidget* parent, Session& session, const ClientForm& initial)
{
    QtClientFormQuestions questions(parent);
    TDlg3 dialog(
        initial,
        [&session, &questions](const ClientForm& form) {
            return acceptClientForm(session, form, questions);
        },
        parent);
    return dialog.exec() == QDialog::Accepted;
}

// Tasks | New Client: a full client list is refused before the form opens; a
// saved client becomes the current one.
void newClient(QWidget* parent, Session& session)
{
    if (const auto refusal = newClientRefusal(session.index)) {
        session.ports.ui.showMessage(*refusal);
        return;
    }
    runClientForm(parent, session, newClientForm());
}

} // namespace

void registerClientCommands(TMyWindow& window, Session& session)
{
    window.setCommand(command::newClient, [&window, &session] { newClient(&window, session); });
}

bool editClient(QWidget* parent, Session& session)
{
    return runClientForm(parent, session, clientFormFrom(session.client));
}

} // namespace purrlodge
