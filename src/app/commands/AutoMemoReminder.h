#pragma once

#include <string>

namespace purrlodge {

class Session;

// The question of the memo reminder.
class MemoReminderQuestions {
public:
    virtual ~MemoReminderQuestions() = default;

    // "An Auto Memo Exists!" (DIALOG 63) with its caption and the memo: true
    // for "Delete", false for "Leave".
    virtual bool askToDeleteAutoMemo(const std::string& caption, const std::string& memo) = 0;
};

// Shows the current client's auto memo when there is one; "Delete" removes
// the memo file. The caller goes on either way.
void remindOfAutoMemo(Session& session, MemoReminderQuestions& questions);

} // namespace purrlodge
