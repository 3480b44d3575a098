#include "app/commands/HelpPages.h"

#include <cstddef>

#include "app/PictureNotes.h"
#include "app/Session.h"
#include "housekeeping/BackupWhereabouts.h"

namespace purrlodge {

void showHelpPage(HelpPagesQuestions& questions, HelpTopic topic)
{
    questions.showHelpPage(topic);
}

void emergencyHelp(Session& session, HelpPagesQuestions& questions)
{
    // Before the first backup no drive is chosen, and there is no backup folder to name.
    const bool backedUpBefore = !session.ports.profile.read("CurrentDrive").empty();
    questions.showEmergencyHelp(
        {session.folder.path(), backedUpBefore ? backupFolderName(session.ports.profile) : ""});
}

void seePictureNotes(Session& session, HelpPagesQuestions& questions)
{
    // The flags say which pictures are offered; the note itself comes from
    // the same table, so a picture is never offered with an empty page.
    if (!session.shell.pictureHasNotes())
        return;
    const int picture = session.shell.pictureIndex;
    const std::string_view text = pictureNote(picture);
    if (text.empty())
        return;
    questions.showPictureNote({picture,
                               session.shell.pictureTable[static_cast<std::size_t>(picture)],
                               std::string(text)});
}

void about(HelpPagesQuestions& questions)
{
    questions.showAbout();
}

} // namespace purrlodge
