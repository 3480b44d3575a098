#pragma once

#include <optional>
#include <string>
#include <vector>

#include "app/commands/FindClient.h"
#include "clients/ClientDetails.h"

namespace purrlodge {

class Session;

// The two ways Client Record Deletion (DIALOG 40) offers.
enum class ClientDeletionChoice {
    RemoveForGood, // "Permanently remove all this client's files"
    Transfer,      // "Transfer this client to the 'Hidden Clients' list."
};

// What the person does in Past Clients (DIALOG 53).
enum class PastClientAction { ShowDetails, Restore, Delete };

struct PastClientChoice {
    PastClientAction action = PastClientAction::ShowDetails;
    int line = -1; // the line selected, -1 for none
};

// The dialogs of Delete Client and View Past Clients.
class ClientRemovalQuestions : public FinderQuestions {
public:
    // Client Record Deletion (DIALOG 40) showing `text`: the choice on "Do
    // it", nothing on Cancel (or with no choice made). Help is DIALOG 56.
    virtual std::optional<ClientDeletionChoice> askDeletion(const std::string& text) = 0;

    // Asked before a client's files are removed for good: true for Yes.
    virtual bool confirmRemovalForGood(const std::string& question) = 0;

    // Past Clients (DIALOG 53) with its caption and lines: the button pressed
    // and the line selected, nothing on Close.
    virtual std::optional<PastClientChoice>
    chooseInPastClients(const std::string& caption, const std::vector<std::string>& lines) = 0;

    // A past client's details (DIALOG 54).
    virtual void showPastClientDetails(const ClientDetailsListing& listing) = 0;
};

// Tasks | Delete Client (11852): the finder, then the chosen client removed
// for good (after a confirmation) or moved to the past clients. Either way it
// is no longer the current client.
void deleteClient(Session& session, ClientRemovalQuestions& questions);

// Tasks | View Past Clients (11864): the list, from which a past client's
// details are shown, a client restored (the list closes) or deleted for good.
void viewPastClients(Session& session, ClientRemovalQuestions& questions);

} // namespace purrlodge
