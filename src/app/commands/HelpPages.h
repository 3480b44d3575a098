#pragma once

#include <string>
#include <utility>

namespace purrlodge {

class Session;

// The fixed help pages of the Help menu and its "Help on:" popup.
enum class HelpTopic {
    setupHelp,           // Setup Help (11845)
    colourPrinting,      // Help on: Colour Printing (11870)
    deletingAClient,     // Help on: Deleting a Client (11865)
    changeDataDirectory, // Help on: Change the Data Directory (11848), DIALOG 20
};

// What the Emergency! page names for this data set.
struct EmergencyFacts {
    std::string dataFolder; // as Purrlodge uses it now
    // The backup folder as the person knows it, "C:\MyCatData"; empty before
    // the first backup chose a drive.
    std::string backupFolder;
};

// The current picture and its note, for See Picture Notes.
struct PictureNote {
    int pictureIndex = 0;
    std::pair<int, int> placement; // the picture's pair from the picture table
    std::string text;              // Windows-1252
};

// The pages the Help menu opens.
class HelpPagesQuestions {
public:
    virtual ~HelpPagesQuestions() = default;
    virtual void showHelpPage(HelpTopic topic) = 0;
    virtual void showEmergencyHelp(const EmergencyFacts& facts) = 0;
    virtual void showPictureNote(const PictureNote& note) = 0;
    virtual void showAbout() = 0;
};

// Help | Setup Help, and the pages of Help | Help on: other than Emergency!.
void showHelpPage(HelpPagesQuestions& questions, HelpTopic topic);

// Help | Help on: | Emergency! (11873): what to do when the program will not
// start or the data looks wrong, naming this data set's folders.
void emergencyHelp(Session& session, HelpPagesQuestions& questions);

// Help | See Picture Notes (11876): the current picture with its note;
// nothing when the current picture has none.
void seePictureNotes(Session& session, HelpPagesQuestions& questions);

// Help | About (11847).
void about(HelpPagesQuestions& questions);

} // namespace purrlodge
