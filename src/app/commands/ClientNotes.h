#pragma once

#include <optional>
#include <string>
#include <vector>

#include "app/commands/FindClient.h"
#include "ports/FormVerdict.h"

namespace purrlodge {

class Session;

// The dialogs of the notes commands.
class ClientNotesQuestions : public FinderQuestions {
public:
    // Note Book (DIALOG 45) under `heading`, holding `lines`; `onOk` gets the
    // lines as the edit lays them out (a wrapped line comes back as lines of
    // its own). Help is DIALOG 46. The closing verdict, nothing on Cancel.
    virtual std::optional<FormVerdict>
    fillNoteBook(const std::string& heading, const std::vector<std::string>& lines,
                 const OkRule<std::vector<std::string>>& onOk) = 0;

    // Auto Memo (DIALOG 62) holding `memo`; Save calls `onOk`.
    virtual std::optional<FormVerdict> fillAutoMemo(const std::string& memo,
                                                    const OkRule<std::string>& onOk) = 0;

    // Account Note (DIALOG 80) holding `note`.
    virtual std::optional<FormVerdict> fillAccountNote(const std::string& note,
                                                       const OkRule<std::string>& onOk) = 0;
};

// Tasks | Make Notes (11866): the cat finder, then the chosen client's note
// book.
void makeNotes(Session& session, ClientNotesQuestions& questions);

// The note book of the session's current client, as the special-notes button
// of Account Preparation opens it.
void editNoteBook(Session& session, ClientNotesQuestions& questions);

// Setup | Set Auto Memo and Tasks | Set AutoMemo (11868): the finder, then the
// chosen client's memo, saved as the 1001-byte record.
void setAutoMemo(Session& session, ClientNotesQuestions& questions);

// Setup | SetAccount Note (11882): the note printed at the bottom of every
// account (at most 120 characters), kept in the rates file where the account
// printout reads it.
void setAccountNote(Session& session, ClientNotesQuestions& questions);

} // namespace purrlodge
