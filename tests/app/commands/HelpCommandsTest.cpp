#include <gtest/gtest.h>
#include <string>
#include <vector>

#include "accounts/CatteryFiles.h"
#include "app/PictureNotes.h"
#include "app/Session.h"
#include "app/StartupSequence.h"
#include "app/commands/HelpPages.h"
#include "store/ClientFiles.h"
#include "support/FakePorts.h"
#include "support/FakeQuestions.h"
#include "support/TempFolder.h"

namespace purrlodge {
namespace {

using testing::FakePorts;
using testing::TempFolder;

// Records the picture notes the Help menu was asked to show.
struct RecordingHelpQuestions : HelpPagesQuestions {
    void showHelpPage(HelpTopic) override {}
    void showEmergencyHelp(const EmergencyFacts& facts) override { emergencies.push_back(facts); }
    void showPictureNote(const PictureNote& note) override { notes.push_back(note); }
    void showAbout() override {}

    std::vector<EmergencyFacts> emergencies;
    std::vector<PictureNote> notes;
};

// A full start on a small data set on the 9th of the month, a day on which
// the picture moves on.
class HelpCommandsTest : public ::testing::Test {
protected:
    HelpCommandsTest()
    {
        fake.clock.setUtc(2024, 3, 9);
        fake.profile.values["currentdir"] = data.path();
        fake.profile.values["lastbkdate"] = std::to_string(fake.clock.nowSeconds);
        DataFolder files{data.path(), fake.ui};
        EXPECT_TRUE(writeIndex(files, ClientIndex{}));
        EXPECT_TRUE(saveEstablishment(files, EstablishmentRecord{}));
        EXPECT_TRUE(saveRates(files, RatesRecord{}));
    }

    // Starts with the picture setting as stored; answers whether See Picture
    // Notes is offered, and runs it.
    bool startWithPicture(const std::string& picdets)
    {
        fake.profile.values["picdets"] = picdets;
        EXPECT_TRUE(runStartupSequence(session, startup, "").carryOn);
        seePictureNotes(session, questions);
        return session.shell.pictureHasNotes();
    }

    TempFolder data;
    FakePorts fake;
    Session session{fake.ports(), ""};
    testing::ScriptedSetupQuestions startup;
    RecordingHelpQuestions questions;
};

// When the picture moves on, and the wrap at the end, are pinned in PictureRotationTest.
TEST_F(HelpCommandsTest, ThePictureAfterTheRotationIsOfferedWithItsNoteOnlyWhenItHasOne)
{
    struct Case {
        std::string picdets;
        int shown;
        bool hasNote;
    };
    for (const auto& [picdets, expected, hasNote] :
         std::vector<Case>{{"2 $ 5", 3, true},  // 9 is a third day: on to a picture with a note
                           {"1 $ 5", 2, false}, // on to one without
                           {"", 1, true}}) {    // no setting: picture 0 on day 0, moved on
        questions.notes.clear();
        const bool offered = startWithPicture(picdets);
        ASSERT_EQ(session.shell.pictureIndex, expected) << picdets;
        EXPECT_EQ(offered, hasNote) << picdets;
        ASSERT_EQ(questions.notes.size(), offered ? 1u : 0u) << picdets;
        if (!offered)
            continue;
        const PictureNote& shown = questions.notes.front();
        EXPECT_EQ(shown.pictureIndex, expected);
        EXPECT_EQ(shown.placement, picturePlacements[static_cast<std::size_t>(expected)]);
        EXPECT_EQ(shown.text, pictureNote(expected));
        EXPECT_FALSE(shown.text.empty());
    }
    EXPECT_TRUE(pictureNote(-1).empty() && pictureNote(pictureCount).empty());
}

TEST_F(HelpCommandsTest, EmergencyNamesTheDataFolderInUseAndTheBackupFolder)
{
    startWithPicture("");
    emergencyHelp(session, questions); // never backed up: no drive chosen yet
    fake.profile.values["currentdrive"] = "E";
    fake.profile.values["defbkdir"] = "CatBackup";
    emergencyHelp(session, questions);
    ASSERT_EQ(questions.emergencies.size(), 2u);
    EXPECT_EQ(questions.emergencies[0].backupFolder, "");
    EXPECT_EQ(questions.emergencies[1].dataFolder, data.path());
    EXPECT_EQ(questions.emergencies[1].backupFolder, "E:\\CatBackup");
}

} // namespace
} // namespace purrlodge
