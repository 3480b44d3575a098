#include "app/commands/ClientEntry.h"

#include "app/CommandIds.h"
#include "app/Session.h"

namespace purrlodge {

namespace {

void fillForm(Session& session, ClientEntryQuestions& questions, const ClientForm& initial)
{
    questions.fillClientForm(initial, [&session, &questions](const ClientForm& form) {
        return acceptClientForm(form, clientFormContext(session), questions);
    });
}

} // namespace

ClientFormContext clientFormContext(Session& session)
{
    return {session.folder, session.index,       session.client,   session.clientCode,
            session.draw,   session.ports.clock, session.ports.ui, session.currentYear};
}

void newClient(Session& session, ClientEntryQuestions& questions)
{
    if (const auto refusal = newClientRefusal(session.index)) {
        session.ports.ui.showMessage(*refusal);
        return;
    }
    fillForm(session, questions, newClientForm());
}

void editClientDetails(Session& session, ClientEntryQuestions& questions)
{
    if (findClient(session, questions, command::editClientDetails))
        fillForm(session, questions, clientFormFrom(session.client, session.ports.clock));
}

} // namespace purrlodge
