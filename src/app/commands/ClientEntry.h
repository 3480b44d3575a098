#pragma once

#include <optional>

#include "app/commands/FindClient.h"
#include "clients/ClientForm.h"
#include "clients/ClientFormQuestions.h"
#include "clients/ClientFormRules.h"
#include "ports/FormVerdict.h"

namespace purrlodge {

class Session;

// Tasks | New Client and Tasks | Edit Client Details: the finder (for an
// edit), then Full Client Information with the questions its OK asks.
class ClientEntryQuestions : public FinderQuestions, public ClientFormQuestions {
public:
    // Full Client Information (DIALOG 3) filled from `initial`. It calls
    // `onOk` at each OK and stays open while it answers StayOpen. The closing
    // verdict, or nothing on Cancel.
    virtual std::optional<FormVerdict> fillClientForm(const ClientForm& initial,
                                                      const OkRule<ClientForm>& onOk) = 0;
};

// What the client form's OK works on in this session.
[[nodiscard]] ClientFormContext clientFormContext(Session& session);

// Tasks | New Client (11853): a full client list is refused before the form
// opens; a saved client becomes the current one.
void newClient(Session& session, ClientEntryQuestions& questions);

// Tasks | Edit Client Details (11854): the finder, then the form on the client
// chosen.
void editClientDetails(Session& session, ClientEntryQuestions& questions);

} // namespace purrlodge
