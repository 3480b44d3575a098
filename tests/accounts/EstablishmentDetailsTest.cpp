#include "accounts/EstablishmentDetails.h"

#include <gtest/gtest.h>

#include "accounts/CatteryFiles.h"
#include "app/Session.h"
#include "support/FakePorts.h"
#include "support/TempFolder.h"

namespace purrlodge {
namespace {

const Message entryVoid{
    "You Must Provide at least the Establishment's Name\nand the Duration of Vaccination validity.",
    "Entry Void", MessageIcon::Exclamation};
const Message textSizeError{"Manager's name Text Size must be between 1 and 5 (incl)",
                            "Text Size Error"};

class EstablishmentDetailsTest : public ::testing::Test {
protected:
    EstablishmentDetailsTest()
    {
        form.name = "Whiskers Lodge";
        form.vaccinationYears = "1";
        form.arrivalSheetLine[0] = "---";
        form.arrivalSheetLine[1] = "Bring a blanket";
        form.typeSize = "12";
        form.onArrivalSheet = form.onAccountSheet = form.inRed = true;
    }

    testing::TempFolder temp;
    testing::FakePorts fake;
    Session session{fake.ports(), temp.path()};
    EstablishmentForm form;
};

TEST_F(EstablishmentDetailsTest, ChecksComeInOrderAndOnlyAGoodTypeSizeWritesTheFile)
{
    // A missing name or vaccination period ends the program before the type size is looked at.
    for (auto required : {&EstablishmentForm::name, &EstablishmentForm::vaccinationYears}) {
        for (const char* text : {"", " Cats"}) {
            EstablishmentForm entries = form;
            entries.*required = text;
            entries.typeSize = "9";
            fake.ui.messages.clear();
            EXPECT_EQ(acceptEstablishmentForm(session, entries), FormVerdict::EndProgram);
            EXPECT_EQ(fake.ui.messages, std::vector<Message>{entryVoid});
        }
    }
    EXPECT_TRUE(session.establishment.name.isEmpty());

    // A bad type size keeps the dialog open; the record has taken the entries.
    for (const char* size : {"0", "6", "x", ""}) {
        EstablishmentForm entries = form;
        entries.typeSize = size;
        fake.ui.messages.clear();
        EXPECT_EQ(acceptEstablishmentForm(session, entries), FormVerdict::StayOpen) << size;
        EXPECT_EQ(fake.ui.messages, std::vector<Message>{textSizeError});
    }
    EXPECT_EQ(session.establishment.name.str(), "Whiskers Lodge");
    EXPECT_TRUE(session.establishment.arrivalSheetLine[0].isEmpty());
    EXPECT_EQ(session.establishment.displayFlags.str(), "CA");
    EXPECT_FALSE(session.folder.exists(establishmentFile));
}

TEST_F(EstablishmentDetailsTest, AcceptedEntriesAreCompletedAndWritten)
{
    EXPECT_EQ(acceptEstablishmentForm(session, form), FormVerdict::Accept);
    EXPECT_EQ(session.shell.managerTypeSize, 1); // "12" reads as 1
    EstablishmentRecord saved{};
    ASSERT_TRUE(loadEstablishment(session.folder, saved));
    EXPECT_EQ(saved.managerTypeSize.str(), "12");
    EXPECT_TRUE(saved.arrivalSheetLine[0].isEmpty());
    EXPECT_EQ(saved.arrivalSheetLine[1].str(), "Bring a blanket");
    EXPECT_EQ(saved.displayFlags.str(), "CA1");
    EXPECT_EQ(saved.chequesColour.str(), "**RED**");
    const EstablishmentForm shown = establishmentFormFrom(saved);
    EXPECT_TRUE(shown.typeSize == "12" && shown.onArrivalSheet && shown.onAccountSheet &&
                shown.inRed);

    form.onArrivalSheet = form.inRed = false;
    form.typeSize = "5";
    acceptEstablishmentForm(session, form);
    loadEstablishment(session.folder, saved);
    EXPECT_EQ(saved.displayFlags.str(), "A5");
    EXPECT_EQ(saved.chequesColour.str(), "**BLACK**");
    EXPECT_EQ(establishmentFormFrom(EstablishmentRecord{}).typeSize, "2");
}

} // namespace
} // namespace purrlodge
