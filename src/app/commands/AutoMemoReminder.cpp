#include "app/commands/AutoMemoReminder.h"

#include "app/Session.h"
#include "clients/AutoMemoReminder.h"
#include "store/ClientFiles.h"

namespace purrlodge {

void remindOfAutoMemo(Session& session, MemoReminderQuestions& questions)
{
    const std::optional<std::string> memo = readAutoMemo(session.folder, session.clientCode);
    if (!memo)
        return;
    if (!questions.askToDeleteAutoMemo(autoMemoCaption(session.client), *memo))
        return;
    const std::string name = clientFileName(session.clientCode, extension::autoMemo);
    if (!session.folder.remove(name))
        session.ports.ui.showMessage(
            {"The file " + session.folder.fileName(name) + " could not be deleted.", "File Error",
             MessageIcon::Exclamation});
}

} // namespace purrlodge
