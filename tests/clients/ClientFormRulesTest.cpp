#include "clients/ClientFormRules.h"

#include <filesystem>
#include <gtest/gtest.h>

#include "app/Session.h"
#include "clients/ClientFormQuestions.h"
#include "store/CivilCalendar.h"
#include "store/ClientFiles.h"
#include "store/IndexOperations.h"
#include "support/Bytes.h"
#include "support/FakePorts.h"
#include "support/TempFolder.h"

namespace purrlodge {
namespace {

using testing::bytesOf;
using Strings = std::vector<std::string>;

// Answers the form's questions as set and records what was asked.
struct ScriptedQuestions : ClientFormQuestions {
    bool confirmSurnameChange() override
    {
        ++surnameAlerts;
        return surnameYes;
    }
    bool continueDespiteBirthYear(const DateWarning& warning) override
    {
        warnings.push_back(warning);
        return continueAfterWarning;
    }
    void showDateWarning(const DateWarning& warning) override { warnings.push_back(warning); }
    std::optional<LeavingCatAnswer> askWhyCatLeft(const std::string& catName) override
    {
        asked.push_back("left " + catName);
        return leaving;
    }
    CatNameChoice askCatNameChange(const std::string& oldName, const std::string& newName) override
    {
        asked.push_back(oldName + ">" + newName);
        return nameChoice;
    }

    bool surnameYes = false;
    int surnameAlerts = 0;
    bool continueAfterWarning = false;
    std::optional<LeavingCatAnswer> leaving; // Cancel unless set
    CatNameChoice nameChoice = CatNameChoice::NameChanged;
    std::vector<DateWarning> warnings;
    Strings asked;
};

class ClientFormRulesTest : public ::testing::Test {
protected:
    ClientFormRulesTest()
    {
        fakes.clock.setUtc(2009, 6, 15);
        session.currentYear = 2009;
    }

    static ClientForm annSmith(const char* firstName = "Anne", const char* surname = "Smith",
                               const char* known = "1")
    {
        ClientForm form = newClientForm();
        form.style = "Mrs";
        form.firstName = firstName;
        form.surname = surname;
        form.known = known;
        form.mobile = "07700 900123";
        form.cats[0] = {"Tibbles", "Persian", "Grey", "2001", "f", "C+I-", "6/04"};
        return form;
    }

    // Saves Anne Smith with three cats (the second with a tag) and opens her for editing.
    ClientForm editedThreeCatClient()
    {
        ClientForm form = annSmith();
        form.cats[1] = {"Felix", "Siamese", "Cream", "2003", "M", "", ""};
        form.cats[2] = {"Sooty", "Moggy", "Black", "2005", "", "c-", ""};
        form.favouriteFoods = {"Fish", "Chicken", "Cream"};
        EXPECT_EQ(ok(form), FormVerdict::Accept);
        session.client.catExtraCode[1].set("X1");
        writeClientRecord(session.folder, "SmithAnn", session.client);
        fakes.ui.messages.clear();
        return clientFormFrom(session.client);
    }

    FormVerdict ok(const ClientForm& form) { return acceptClientForm(session, form, questions); }

    // Presses OK on a form that must stay open with exactly this message.
    void expectRefusal(const ClientForm& form, const Message& expected)
    {
        fakes.ui.messages.clear();
        EXPECT_EQ(ok(form), FormVerdict::StayOpen) << expected.text;
        EXPECT_EQ(fakes.ui.messages, std::vector<Message>{expected});
    }

    bool folderIsEmpty() const { return std::filesystem::is_empty(temp.root()); }

    OtherCatRecord lastOtherCat()
    {
        OtherCatsFile others;
        EXPECT_TRUE(session.folder.read("SmithAnn.XC2", others));
        return others.cats[9];
    }

    testing::TempFolder temp;
    testing::FakePorts fakes;
    Session session{fakes.ports(), temp.path()};
    ScriptedQuestions questions;
};

TEST_F(ClientFormRulesTest, NamesAreCheckedInOrderWithTheirOwnMessages)
{
    expectRefusal(annSmith("--", "ng", " -"),
                  {"please enter a value for 'known' eg 1 if not known", "Missing Value"});
    expectRefusal(
        annSmith(" .-", "ng"),
        {"You must provide a First Name!\nIf not known insert 'unknown'", "Missing name"});
    expectRefusal(annSmith("Anne", "Ng"), {"Surname must be more than 3 letters!", "Name Error"});
    expectRefusal(annSmith("Anne", "smith2"),
                  {"Surname must start with an Upper Case letter", "Name error"});
    expectRefusal(annSmith("Anne", "Smith2"), {"The Surname contains an illegal character viz: '2'",
                                               "Illegal Character", MessageIcon::Exclamation});
    for (const char* known : {"11", "-1"})
        expectRefusal(annSmith("Anne", "Smith", known),
                      {"'Known' values must be between 0 and 10", "Known Value Error"});
    EXPECT_TRUE(folderIsEmpty()) << "a failed check writes nothing";

    for (const char* surname : {"Fox", "O'Neil-Smith", "St. John"})
        EXPECT_EQ(ok(annSmith("Anne", surname)), FormVerdict::Accept) << surname;
}

TEST_F(ClientFormRulesTest, CatRowEntriesAreCheckedAndRead)
{
    const Message badChip{"The Chipped/Insurance contains an illegal character", "Entry Error",
                          MessageIcon::Exclamation};
    const Message badSex{"Illegal character in Sex box", "Entry Error", MessageIcon::Exclamation};
    const std::pair<CatRowEntries, Message> failures[] = {
        {{"Tom", "", "", "", "", "x", ""}, badChip},
        {{"Tom", "", "", "", "Mf", "", ""}, badSex},
        {{"Tom", "", "", "", "", "", "604"},
         {"Last Vac-Date seems in incorrect format - should be dd/mm, '/' is missing!",
          "Date Error", MessageIcon::Exclamation}},
        {{"Tom", "", "", "", "", "", "06/2004"},
         {"Date-year should be just two figures eg:  04", "Date Error"}},
    };
    ClientForm form = annSmith();
    for (const auto& [row, message] : failures) {
        form.cats[1] = row;
        expectRefusal(form, message);
    }
    fakes.ui.messages.clear();
    form.cats[1] = {"Tom", "", "", "", "", "c+ i-", "13/04"};
    EXPECT_EQ(ok(form), FormVerdict::StayOpen);
    EXPECT_TRUE(fakes.ui.messages.empty());
    const DateWarning noSuchMonth{"Apparent Date Error", 3, "No such month!", "Last Vac Date"};
    EXPECT_EQ(questions.warnings, std::vector<DateWarning>{noSuchMonth});
    EXPECT_TRUE(folderIsEmpty());

    form.cats[1].lastVaccination = "";
    form.cats[2] = {"Kit", "", "", "", "m", "", ""};
    ASSERT_EQ(ok(form), FormVerdict::Accept);
    const auto firstThree = [](const auto& slots) {
        return std::vector<int>{slots[0].get(), slots[1].get(), slots[2].get()};
    };
    EXPECT_EQ(firstThree(session.client.catMicrochip), (std::vector{2, 2, 0}));
    EXPECT_EQ(firstThree(session.client.catInsurance), (std::vector{1, 1, 0}));
    EXPECT_EQ(firstThree(session.client.catSex), (std::vector{4, 0, 3}));
    EXPECT_EQ(session.client.catLastVaccination[0].get(), daysFromCivil(2004, 6, 1) * 86400 + 43200)
        << "6/04 is noon of 1 June 2004";
}

TEST_F(ClientFormRulesTest, AnImprobableBirthYearAsksBeforeItIsKept)
{
    ClientForm form = annSmith();
    for (const char* year : {"0", "", "1984", "2034"}) {
        form.cats[0].birthYear = year;
        EXPECT_EQ(ok(form), FormVerdict::Accept) << year;
    }
    EXPECT_TRUE(questions.warnings.empty()) << "blank and 25 years either way pass";

    form.cats[0].birthYear = "1983";
    EXPECT_EQ(ok(form), FormVerdict::StayOpen) << "Cancel abandons the OK";
    ASSERT_EQ(questions.warnings.size(), 1u);
    EXPECT_EQ(questions.warnings[0].code, 8);
    EXPECT_EQ(questions.warnings[0].message, "Date of Birth seems improbable");

    questions.continueAfterWarning = true;
    EXPECT_EQ(ok(form), FormVerdict::Accept);
    EXPECT_EQ(session.client.catBirthYear[0].get(), 1983);
}

TEST_F(ClientFormRulesTest, ANewClientIsCodedIndexedAndWrittenByteForByte)
{
    session.client.catName[3].set("Ghost"); // the previous current client
    ClientForm form = annSmith();
    form.notes = {"Shy", "Diabetic", "", ""};
    form.redNote = {false, true, false, false};
    form.lastIn = "01/02/2009 extra";
    ASSERT_EQ(ok(form), FormVerdict::Accept);

    const ClientRecord& client = session.client;
    EXPECT_EQ(client.code.str(), "SmithAnn");
    EXPECT_TRUE(client.catName[3].isEmpty()) << "a new client starts from an empty record";
    EXPECT_EQ(client.mobile.str(), "07700 900123::");
    EXPECT_EQ(client.notes[1].str(), "#R# Diabetic");
    EXPECT_EQ(client.lastInDate.str(), "01/02/2009 e");
    EXPECT_EQ(client.firstRegistered.get(), daysFromCivil(2009, 6, 15) * 86400 + 43200);
    ASSERT_EQ(session.index.usedCount(), 1);
    EXPECT_EQ(session.index.entries[1].key.str(), "Smith");
    EXPECT_EQ(session.index.entries[1].code.str(), "SmithAnn");
    EXPECT_EQ(testing::fileBytes(temp.root() / "SmithAnn.DAT"), bytesOf(client));
    EXPECT_EQ(testing::fileBytes(temp.root() / "FIDEX.CTL"), bytesOf(session.index));
}

TEST_F(ClientFormRulesTest, AFullIndexRefusesANewClientAndWritesNothing)
{
    for (int i = 0; i < maxClients; ++i)
        appendEntry(session.index, "Someone", "CODE" + std::to_string(i));
    expectRefusal(annSmith(), newClientRefusal(session.index).value());
    EXPECT_EQ(fakes.ui.messages[0].title, "Client List Full");
    EXPECT_TRUE(folderIsEmpty());
}

TEST_F(ClientFormRulesTest, EditingRoundTripsAndBlankKnownAndVaccinationClear)
{
    EXPECT_EQ(storedNoteLine("Diabetic", true), "#R# Diabetic");
    EXPECT_EQ(storedNoteLine("#R# Diabetic", false), "Diabetic");

    ClientForm form = editedThreeCatClient();
    form.notes[0] = "Diabetic";
    form.redNote[0] = true;
    ASSERT_EQ(ok(form), FormVerdict::Accept);

    // Opening and saving again changes nothing, the notes and mobile included.
    const ClientRecord before = session.client;
    ClientForm reopened = clientFormFrom(session.client);
    EXPECT_TRUE(reopened.redNote[0]);
    EXPECT_EQ(reopened.notes[0], "Diabetic");
    EXPECT_EQ(reopened.mobile, "07700 900123");
    EXPECT_EQ(reopened.known, "1");
    EXPECT_EQ(reopened.cats[0],
              (CatRowEntries{"Tibbles", "Persian", "Grey", "2001", "f", "C+I-", "06/04"}));
    ASSERT_EQ(ok(reopened), FormVerdict::Accept);
    EXPECT_EQ(bytesOf(session.client), bytesOf(before));

    reopened.known = "";
    reopened.cats[0].lastVaccination = "";
    EXPECT_EQ(ok(reopened), FormVerdict::Accept);
    EXPECT_EQ(session.client.knownRating.get(), 0);
    EXPECT_EQ(session.client.catLastVaccination[0].get(), 0);
}

TEST_F(ClientFormRulesTest, ASurnameChangeIsSavedAtOnceOnlyWhenConfirmed)
{
    ClientForm form = editedThreeCatClient();
    form.surname = "Jones";
    form.style = "Dr";
    EXPECT_EQ(ok(form), FormVerdict::Accept);
    EXPECT_EQ(session.client.surname.str(), "Smith") << "No keeps the surname";
    EXPECT_EQ(session.client.style.str(), "Dr") << "and saves the rest";

    questions.surnameYes = true;
    form.known = "11";
    EXPECT_EQ(ok(form), FormVerdict::StayOpen);
    ClientRecord onDisc;
    readClientRecord(session.folder, "SmithAnn", onDisc);
    EXPECT_EQ(onDisc.surname.str(), "Jones") << "YES writes the record at once";
    EXPECT_EQ(session.index.entries[1].key.str(), "Jones");

    form.known = "2";
    EXPECT_EQ(ok(form), FormVerdict::Accept);
    EXPECT_EQ(questions.surnameAlerts, 2) << "the stored surname is now Jones";
    ClientIndex indexOnDisc;
    readIndex(session.folder, indexOnDisc);
    EXPECT_EQ(indexOnDisc.entries[1].key.str(), "Jones");
    EXPECT_EQ(indexOnDisc.entries[1].code.str(), "SmithAnn") << "the code never changes";
}

TEST_F(ClientFormRulesTest, AnEmptiedRowSendsItsCatToOtherCatsAndPacksTheRest)
{
    ClientForm form = editedThreeCatClient();
    form.cats[1] = {};
    EXPECT_EQ(ok(form), FormVerdict::StayOpen) << "Cancel on DIALOG 50 abandons the OK";
    EXPECT_FALSE(session.folder.exists("SmithAnn.XC2"));
    EXPECT_EQ(session.client.catName[1].str(), "Felix");

    questions.leaving = LeavingCatAnswer{LeavingReason::NewHome, "To her sister"};
    ASSERT_EQ(ok(form), FormVerdict::Accept);
    EXPECT_EQ(questions.asked, (Strings{"left Felix", "left Felix"}));
    EXPECT_EQ(fakes.ui.messages,
              (std::vector<Message>{
                  {"Felix has been moved to Anne Smith's 'Other Cats' list", "Other Cats"}}));

    const ClientRecord& client = session.client;
    EXPECT_EQ(client.catName[1].str(), "Sooty");
    EXPECT_TRUE(client.catName[2].isEmpty());
    EXPECT_TRUE(client.catExtraCode[1].isEmpty()) << "Felix's tag left with him";
    EXPECT_EQ(client.favouriteFoods[0][1].str(), "Chicken") << "foods stay with their slots";

    const OtherCatRecord felix = lastOtherCat();
    EXPECT_EQ(felix.name.str(), "Felix");
    EXPECT_EQ(felix.reason.str(), "Rehomed");
    EXPECT_EQ(felix.history.str(), "Born 2003,   Departed 15/06/09,   age 6");
}

TEST_F(ClientFormRulesTest, ARenamedRowIsTheSameCatOrANewOne)
{
    ClientForm form = editedThreeCatClient();
    form.cats[1].name = "felix ";
    ASSERT_EQ(ok(form), FormVerdict::Accept);
    EXPECT_TRUE(questions.asked.empty()) << "a change of case is no new name";

    form.cats[1].name = "Oscar";
    ASSERT_EQ(ok(form), FormVerdict::Accept);
    EXPECT_EQ(questions.asked, Strings{"felix >Oscar"});
    EXPECT_EQ(session.client.catExtraCode[1].str(), "X1") << "a renamed cat keeps its tag";
    EXPECT_FALSE(session.folder.exists("SmithAnn.XC2"));

    questions.asked.clear();
    form.cats[1] = {"Bella", "Ragdoll", "White", "2009", "F", "", ""};
    questions.nameChoice = CatNameChoice::NewCat;
    questions.leaving = LeavingCatAnswer{LeavingReason::Death, ""};
    ASSERT_EQ(ok(form), FormVerdict::Accept);
    EXPECT_EQ(questions.asked, (Strings{"Oscar>Bella", "left Oscar"}));
    EXPECT_TRUE(session.client.catExtraCode[1].isEmpty());
    EXPECT_EQ(lastOtherCat().name.str(), "Oscar");
    EXPECT_EQ(lastOtherCat().breed.str(), "Siamese") << "the old cat's details, not the new";
}

} // namespace
} // namespace purrlodge
