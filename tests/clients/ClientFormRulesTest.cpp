#include "clients/ClientFormRules.h"

#include <filesystem>
#include <fstream>
#include <gtest/gtest.h>
#include <iterator>

#include "app/Session.h"
#include "clients/ClientFormQuestions.h"
#include "store/CivilCalendar.h"
#include "store/ClientFiles.h"
#include "store/IndexOperations.h"
#include "support/FakePorts.h"
#include "support/TempFolder.h"

namespace purrlodge {
namespace {

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
    std::vector<std::string> asked;
};

template <class Block> std::string bytesOf(const Block& block)
{
    return std::string(reinterpret_cast<const char*>(&block), sizeof block);
}

std::string fileBytes(const std::filesystem::path& path)
{
    std::ifstream in(path, std::ios::binary);
    return {std::istreambuf_iterator<char>(in), std::istreambuf_iterator<char>()};
}

class ClientFormRulesTest : public ::testing::Test {
protected:
    ClientFormRulesTest()
    {
        fakes.clock.setUtc(2009, 6, 15);
        session.currentYear = 2009;
    }

    static ClientForm annSmith()
    {
        ClientForm form = newClientForm();
        form.style = "Mrs";
        form.firstName = "Anne";
        form.surname = "Smith";
        form.known = "1";
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

    static ClientForm named(const char* firstName, const char* surname, const char* known)
    {
        ClientForm form = annSmith();
        form.firstName = firstName;
        form.surname = surname;
        form.known = known;
        return form;
    }

    bool folderIsEmpty() const { return std::filesystem::is_empty(temp.root()); }

    testing::TempFolder temp;
    testing::FakePorts fakes;
    Session session{fakes.ports(), temp.path()};
    ScriptedQuestions questions;
};

TEST_F(ClientFormRulesTest, NamesAreCheckedInOrderWithTheirOwnMessages)
{
    expectRefusal(named("--", "ng", " -"),
                  {"please enter a value for 'known' eg 1 if not known", "Missing Value"});
    expectRefusal(
        named(" .-", "ng", "1"),
        {"You must provide a First Name!\nIf not known insert 'unknown'", "Missing name"});
    expectRefusal(named("Anne", "Ng", "1"), {"Surname must be more than 3 letters!", "Name Error"});
    expectRefusal(named("Anne", "smith2", "1"),
                  {"Surname must start with an Upper Case letter", "Name error"});
    expectRefusal(named("Anne", "Smith2", "1"),
                  {"The Surname contains an illegal character viz: '2'", "Illegal Character",
                   MessageIcon::Exclamation});
    EXPECT_TRUE(folderIsEmpty()) << "a failed check writes nothing";

    for (const char* surname : {"Fox", "O'Neil-Smith", "St. John"})
        EXPECT_EQ(ok(named("Anne", surname, "1")), FormVerdict::Accept) << surname;
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
    for (const auto& [row, message] : failures) {
        ClientForm form = annSmith();
        form.cats[1] = row;
        expectRefusal(form, message);
    }
    fakes.ui.messages.clear();
    ClientForm form = annSmith();
    form.cats[1] = {"Tom", "", "", "", "", "c+ i-", "13/04"};
    EXPECT_EQ(ok(form), FormVerdict::StayOpen);
    EXPECT_TRUE(fakes.ui.messages.empty());
    const DateWarning noSuchMonth{"Apparent Date Error", 3, "No such month!", "Last Vac Date"};
    EXPECT_EQ(questions.warnings, std::vector<DateWarning>{noSuchMonth});
    EXPECT_TRUE(folderIsEmpty());

    form.cats[1].lastVaccination = "";
    form.cats[2] = {"Kit", "", "", "", "m", "", ""};
    ASSERT_EQ(ok(form), FormVerdict::Accept);
    const ClientRecord& saved = session.client;
    for (int slot : {0, 1}) {
        EXPECT_EQ(saved.catMicrochip[slot].get(), 2) << "C+I- and c+ i- are chipped";
        EXPECT_EQ(saved.catInsurance[slot].get(), 1) << "and not insured";
    }
    EXPECT_EQ(saved.catMicrochip[2].get() + saved.catInsurance[2].get(), 0);
    EXPECT_EQ(saved.catSex[0].get(), 4);
    EXPECT_EQ(saved.catSex[1].get(), 0);
    EXPECT_EQ(saved.catSex[2].get(), 3);
    EXPECT_EQ(saved.catLastVaccination[0].get(), daysFromCivil(2004, 6, 1) * 86400 + 43200)
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

TEST_F(ClientFormRulesTest, KnownLiesBetweenNoughtAndTenAndBlankOnEditClears)
{
    for (const char* known : {"11", "-1"})
        expectRefusal(named("Anne", "Smith", known),
                      {"'Known' values must be between 0 and 10", "Known Value Error"});
    EXPECT_TRUE(folderIsEmpty()) << "the last check failing still writes nothing";

    ClientForm form = editedThreeCatClient();
    ASSERT_EQ(form.known, "1");
    ASSERT_EQ(form.cats[0].lastVaccination, "06/04");
    form.known = "";
    form.cats[0].lastVaccination = "";
    EXPECT_EQ(ok(form), FormVerdict::Accept);
    EXPECT_EQ(session.client.knownRating.get(), 0);
    EXPECT_EQ(session.client.catLastVaccination[0].get(), 0);
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
    EXPECT_EQ(fileBytes(temp.root() / "SmithAnn.DAT"), bytesOf(client));
    EXPECT_EQ(fileBytes(temp.root() / "FIDEX.CTL"), bytesOf(session.index));
}

TEST_F(ClientFormRulesTest, AFullIndexRefusesANewClientAndWritesNothing)
{
    for (int i = 0; i < maxClients; ++i)
        appendEntry(session.index, "Someone", "CODE" + std::to_string(i));
    ASSERT_TRUE(newClientRefusal(session.index).has_value());
    expectRefusal(annSmith(), *newClientRefusal(session.index));
    EXPECT_EQ(fakes.ui.messages[0].title, "Client List Full");
    EXPECT_TRUE(folderIsEmpty());
}

TEST_F(ClientFormRulesTest, RedNotesKeepOneMarkerAndEditingRoundTrips)
{
    EXPECT_EQ(storedNoteLine("Diabetic", true), "#R# Diabetic");
    EXPECT_EQ(storedNoteLine("#R# Diabetic", false), "Diabetic");

    ClientForm form = editedThreeCatClient();
    form.notes[0] = "Diabetic";
    form.redNote[0] = true;
    ASSERT_EQ(ok(form), FormVerdict::Accept);

    // Opening and saving again changes nothing, the notes and mobile included.
    const ClientRecord before = session.client;
    const ClientForm reopened = clientFormFrom(session.client);
    EXPECT_TRUE(reopened.redNote[0]);
    EXPECT_EQ(reopened.notes[0], "Diabetic");
    EXPECT_EQ(reopened.mobile, "07700 900123");
    EXPECT_EQ(reopened.cats[0],
              (CatRowEntries{"Tibbles", "Persian", "Grey", "2001", "f", "C+I-", "06/04"}));
    ASSERT_EQ(ok(reopened), FormVerdict::Accept);
    EXPECT_EQ(bytesOf(session.client), bytesOf(before));
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
    EXPECT_EQ(questions.asked, (std::vector<std::string>{"left Felix", "left Felix"}));
    EXPECT_EQ(fakes.ui.messages[0].text, "Felix has been moved to Anne Smith's 'Other Cats' list");
    EXPECT_EQ(fakes.ui.messages[0].title, "Other Cats");

    const ClientRecord& client = session.client;
    EXPECT_EQ(client.catName[1].str(), "Sooty");
    EXPECT_TRUE(client.catName[2].isEmpty());
    EXPECT_TRUE(client.catExtraCode[1].isEmpty()) << "Felix's tag left with him";
    EXPECT_EQ(client.favouriteFoods[0][1].str(), "Chicken") << "foods stay with their slots";

    OtherCatsFile others;
    ASSERT_TRUE(session.folder.read("SmithAnn.XC2", others));
    EXPECT_EQ(others.cats[9].name.str(), "Felix");
    EXPECT_EQ(others.cats[9].reason.str(), "Rehomed");
    EXPECT_EQ(others.cats[9].history.str(), "Born 2003,   Departed 15/06/09,   age 6");
}

TEST_F(ClientFormRulesTest, ARenamedRowIsTheSameCatOrANewOne)
{
    ClientForm form = editedThreeCatClient();
    form.cats[1].name = "felix ";
    ASSERT_EQ(ok(form), FormVerdict::Accept);
    EXPECT_TRUE(questions.asked.empty()) << "a change of case is no new name";

    form.cats[1].name = "Oscar";
    ASSERT_EQ(ok(form), FormVerdict::Accept);
    EXPECT_EQ(questions.asked, std::vector<std::string>{"felix >Oscar"});
    EXPECT_EQ(session.client.catExtraCode[1].str(), "X1") << "a renamed cat keeps its tag";
    EXPECT_FALSE(session.folder.exists("SmithAnn.XC2"));

    questions.asked.clear();
    form.cats[1] = {"Bella", "Ragdoll", "White", "2009", "F", "", ""};
    questions.nameChoice = CatNameChoice::NewCat;
    questions.leaving = LeavingCatAnswer{LeavingReason::Death, ""};
    ASSERT_EQ(ok(form), FormVerdict::Accept);
    EXPECT_EQ(questions.asked, (std::vector<std::string>{"Oscar>Bella", "left Oscar"}));
    EXPECT_TRUE(session.client.catExtraCode[1].isEmpty());

    OtherCatsFile others;
    ASSERT_TRUE(session.folder.read("SmithAnn.XC2", others));
    EXPECT_EQ(others.cats[9].name.str(), "Oscar");
    EXPECT_EQ(others.cats[9].breed.str(), "Siamese") << "the old cat's details, not the new";
}

} // namespace
} // namespace purrlodge
