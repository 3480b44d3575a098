#include "app/commands/ClientRemoval.h"

#include "app/CommandIds.h"
#include "app/Session.h"
#include "clients/PastClients.h"
#include "store/ClientCode.h"
#include "store/ClientFiles.h"
#include "store/IndexOperations.h"
#include "store/TextHelpers.h"

namespace purrlodge {

namespace {

std::string fullName(const ClientRecord& client)
{
    return formatted("%s %s %s", client.style.str().c_str(), client.firstName.str().c_str(),
                     client.surname.str().c_str());
}

std::string removalQuestion(const ClientRecord& client)
{
    return "Every file of " + fullName(client) +
           " will be deleted: the record, the stays, the accounts, the notes and the memo.\n"
           "Nothing can bring them back.\n\nRemove this client for good?";
}

// No client is current once the current one has gone.
void forgetCurrentClient(Session& session)
{
    session.client = ClientRecord{};
    session.stay = StayRecord{};
    session.clientCode.clear();
}

// The client's entry leaves the list first, so a crash never leaves an entry
// that names no files; then the files go.
bool removeForGood(Session& session, int entry)
{
    ClientIndex current = session.index;
    removeEntry(current, entry);
    if (!writeIndex(session.folder, current))
        return false;
    session.index = current;
    removeClientFiles(session.folder, session.clientCode, session.ports.ui);
    return true;
}

void showPastClientDetails(Session& session, ClientRemovalQuestions& questions,
                           const std::string& code)
{
    ClientRecord client{};
    if (isSafeClientCode(code))
        readClientRecord(session.folder, code, client);
    questions.showPastClientDetails(
        pastClientDetailsListing(client, code, session.currentYear, session.ports.clock));
}

void tellNotFound(Session& session)
{
    session.ports.ui.showMessage({"Client could not be found", "Data Errar"});
}

} // namespace

void deleteClient(Session& session, ClientRemovalQuestions& questions)
{
    if (!findClient(session, questions, command::deleteClient))
        return;
    const int entry = findCode(session.index, session.clientCode);
    if (entry < 1)
        return;
    const std::optional<ClientDeletionChoice> choice = questions.askDeletion(
        "You can completely remove all files relating to " + fullName(session.client) +
        "\nor\ntransfer them to your 'Old Client' file");
    if (!choice)
        return;
    if (*choice == ClientDeletionChoice::RemoveForGood) {
        if (!questions.confirmRemovalForGood(removalQuestion(session.client)) ||
            !removeForGood(session, entry))
            return;
    } else if (!transferToPastClients(session.folder, session.index, entry)) {
        return;
    }
    forgetCurrentClient(session);
}

void viewPastClients(Session& session, ClientRemovalQuestions& questions)
{
    for (;;) {
        const std::vector<std::string> lines = pastClientLines(session.folder);
        const std::optional<PastClientChoice> choice =
            questions.chooseInPastClients(pastClientsCaption(session.ports.clock), lines);
        if (!choice)
            return;
        if (choice->line < 0 || choice->line >= static_cast<int>(lines.size())) {
            session.ports.ui.showMessage({"No Line Selected", "Error"});
            continue;
        }
        const std::string code =
            codeOfPastClientLine(lines[static_cast<std::size_t>(choice->line)]);
        switch (choice->action) {
        case PastClientAction::ShowDetails:
            showPastClientDetails(session, questions, code);
            break;
        case PastClientAction::Restore:
            switch (restorePastClient(session.folder, session.index, code)) {
            case RestoreResult::Restored:
                return;
            case RestoreResult::NotFound:
                tellNotFound(session);
                break;
            case RestoreResult::ListFull:
                session.ports.ui.showMessage(
                    {"The client list is full: delete a client or move one to the past clients "
                     "before restoring this one.",
                     "Client List Full", MessageIcon::Exclamation});
                break;
            case RestoreResult::WriteFailed:
                break;
            }
            break;
        case PastClientAction::Delete: {
            ClientRecord client{};
            if (isSafeClientCode(code))
                readClientRecord(session.folder, code, client);
            if (!questions.confirmRemovalForGood(removalQuestion(client)))
                break;
            if (deletePastClient(session.folder, code, session.ports.ui) == PastDeletion::NotFound)
                tellNotFound(session);
            break;
        }
        }
    }
}

} // namespace purrlodge
