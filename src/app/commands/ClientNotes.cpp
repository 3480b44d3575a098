#include "app/commands/ClientNotes.h"

#include "accounts/CatteryFiles.h"
#include "app/CommandIds.h"
#include "app/Session.h"
#include "clients/AutoMemoReminder.h"
#include "clients/NoteBook.h"

namespace purrlodge {

namespace {

FormVerdict verdictOf(bool saved)
{
    return saved ? FormVerdict::Accept : FormVerdict::StayOpen;
}

} // namespace

void makeNotes(Session& session, ClientNotesQuestions& questions)
{
    if (findClient(session, questions, command::makeNotes))
        editNoteBook(session, questions);
}

void editNoteBook(Session& session, ClientNotesQuestions& questions)
{
    if (session.clientCode.empty())
        return;
    questions.fillNoteBook(
        noteBookHeading(session.client), readNoteBook(session.folder, session.clientCode),
        [&session](const std::vector<std::string>& lines) {
            return verdictOf(saveNoteBook(session.folder, session.clientCode, lines));
        });
}

void setAutoMemo(Session& session, ClientNotesQuestions& questions)
{
    if (!findClient(session, questions, command::setAutoMemo))
        return;
    questions.fillAutoMemo(readAutoMemo(session.folder, session.clientCode).value_or(""),
                           [&session](const std::string& memo) {
                               return verdictOf(
                                   saveAutoMemo(session.folder, session.clientCode, memo));
                           });
}

void setAccountNote(Session& session, ClientNotesQuestions& questions)
{
    questions.fillAccountNote(session.rates.accountNote.str(), [&session](const std::string& note) {
        RatesRecord rates = session.rates;
        rates.accountNote.set(std::string_view(note).substr(0, accountNoteLimit));
        if (!saveRates(session.folder, rates))
            return FormVerdict::StayOpen;
        session.rates = rates;
        return FormVerdict::Accept;
    });
}

} // namespace purrlodge
