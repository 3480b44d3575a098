#include "clients/ClientFormRules.h"

#include <filesystem>
#include <gtest/gtest.h>

#include "store/CivilCalendar.h"
#include "store/ClientFiles.h"
#include "store/DataFolder.h"
#include "store/IndexOperations.h"
#include "store/RandomDraw.h"
#include "support/Bytes.h"
#include "support/FakePorts.h"
#include "support/FakeQuestions.h"
#include "support/TempFolder.h"

namespace purrlodge {
namespace {

namespace fs = std::filesystem;
using enum FormVerdict;
using testing::bytesOf;
using Strings = std::vector<std::string>;

// Noon of the first of the month: how a last vaccination is stored.
std::int64_t firstOfMonth(int year, int month)
{
    return daysFromCivil(year, month, 1) * 86400 + 43200;
}

class ClientFormRulesTest : public ::testing::Test {
protected:
    ClientFormRulesTest() { fakes.clock.setUtc(2009, 6, 15); }

    static ClientForm annSmith(const char* firstName = "Anne", const char* surname = "Smith")
    {
        ClientForm form = newClientForm();
        form.style = "Mrs";
        form.firstName = firstName;
        form.surname = surname;
        form.known = "1";
        form.mobile = "07700 900123";
        form.cats[0] = {"Tibbles", "Persian", "Grey", "2001", "f", "C+I-", "6/04"};
        return form;
    }

    FormVerdict ok(const ClientForm& form)
    {
        return acceptClientForm(
            form, {folder, index, client, code, draw, fakes.clock, fakes.ui, 2009}, questions);
    }

    // Presses OK on a form that must stay open with exactly this message.
    void expectRefusal(const ClientForm& form, const Message& expected)
    {
        fakes.ui.messages.clear();
        EXPECT_EQ(ok(form), StayOpen) << expected.text;
        EXPECT_EQ(fakes.ui.messages, std::vector<Message>{expected});
    }

    // Saves Bob Adams, then Anne Smith (index entry 2) with three cats, the
    // second and third with tags, and opens her for editing.
    ClientForm editedThreeCatClient()
    {
        EXPECT_EQ(ok(annSmith("Bob", "Adams")), Accept);
        ClientForm form = annSmith();
        form.cats[1] = {"Felix", "Siamese", "Cream", "2003", "M", "", ""};
        form.cats[2] = {"Sooty", "Moggy", "Black", "2005", "", "c-", ""};
        EXPECT_EQ(ok(form), Accept);
        client.catExtraCode[1].set("X1");
        client.catExtraCode[2].set("X2");
        EXPECT_TRUE(writeClientRecord(folder, "SmithAnn", client));
        return clientFormFrom(client, fakes.clock);
    }

    // A folder where the file goes makes every write of it fail.
    void block(const std::string& name)
    {
        fs::remove(temp.root() / name);
        fs::create_directory(temp.root() / name);
    }

    template <class Block> Block onDisc(std::string_view name) const
    {
        Block block;
        folder.read(name, block);
        return block;
    }

    testing::TempFolder temp;
    testing::FakePorts fakes;
    DataFolder folder{temp.path(), fakes.ui};
    ClientIndex index{};
    ClientRecord client{};
    std::string code; // the current client's index code
    RandomDraw draw{fakes.random, fakes.clock};
    testing::ScriptedClientQuestions questions;
};

TEST_F(ClientFormRulesTest, ChecksRunInTheirOrderEachWithItsMessage)
{
    ClientForm form = annSmith("--", "ng");
    form.known = " -";
    expectRefusal(form, {"please enter a value for 'known' eg 1 if not known", "Missing Value"});
    expectRefusal(
        annSmith(" .-", "ng"),
        {"You must provide a First Name!\nIf not known insert 'unknown'", "Missing name"});
    expectRefusal(annSmith("Anne", "Ng"), {"Surname must be more than 3 letters!", "Name Error"});
    expectRefusal(annSmith("Anne", "smith2"),
                  {"Surname must start with an Upper Case letter", "Name error"});
    expectRefusal(annSmith("Anne", "Smith2"), {"The Surname contains an illegal character viz: '2'",
                                               "Illegal Character", MessageIcon::Exclamation});

    // Each cat row is checked before Known, which comes last.
    const std::pair<CatRowEntries, Message> failures[] = {
        {{"Tom", "", "", "", "", "x", ""},
         {"The Chipped/Insurance contains an illegal character", "Entry Error",
          MessageIcon::Exclamation}},
        {{"Tom", "", "", "", "Mf", "", ""},
         {"Illegal character in Sex box", "Entry Error", MessageIcon::Exclamation}},
        {{"Tom", "", "", "", "", "", "604"},
         {"Last Vac-Date seems in incorrect format - should be dd/mm, '/' is missing!",
          "Date Error", MessageIcon::Exclamation}},
    };
    form = annSmith();
    form.known = "11";
    for (const auto& [row, message] : failures) {
        form.cats[1] = row;
        expectRefusal(form, message);
    }
    form.cats[1] = {"Tom", "", "", "", "", "c+ i-", "13/04"};
    EXPECT_EQ(ok(form), StayOpen);
    EXPECT_EQ(questions.warnings.at(0).message, "No such month!") << "DIALOG 16 tells";
    form.cats[1].lastVaccination = "";
    expectRefusal(form, {"'Known' values must be between 0 and 10", "Known Value Error"});
    EXPECT_TRUE(fs::is_empty(temp.root())) << "a failed check writes nothing";
    for (const char* surname : {"Fox", "O'Neil-Smith", "St. John"})
        EXPECT_EQ(ok(annSmith("Anne", surname)), Accept) << surname;
}

TEST_F(ClientFormRulesTest, KnownVaccinationYearAndBirthYearHoldTheirLimitsOnBothSides)
{
    ClientForm form = annSmith();
    for (const char* known : {"0", "10"}) {
        form.known = known;
        ASSERT_EQ(ok(form), Accept) << known;
        EXPECT_EQ(client.knownRating.get(), leadingInt(known));
    }
    form.known = "-1"; // 11 is refused in ChecksRunInTheirOrderEachWithItsMessage
    EXPECT_EQ(ok(form), StayOpen);
    form.known = "1";
    form.cats[0].lastVaccination = "6/99";
    ASSERT_EQ(ok(form), Accept);
    EXPECT_EQ(client.catLastVaccination[0].get(), firstOfMonth(1999, 6));
    form.cats[0].lastVaccination = "6/100";
    expectRefusal(form, {"Date-year should be just two figures eg:  04", "Date Error"});

    // A year of birth more than 25 years away asks first; Cancel abandons the OK.
    form.cats[0].lastVaccination = "";
    const std::pair<const char*, FormVerdict> years[] = {
        {"", Accept}, {"1984", Accept}, {"2034", Accept}, {"1983", StayOpen}, {"2035", StayOpen}};
    for (const auto& [year, verdict] : years) {
        form.cats[0].birthYear = year;
        EXPECT_EQ(ok(form), verdict) << year;
    }
    EXPECT_EQ(questions.warnings.size(), 2u);
    questions.continueAfterWarning = true;
    EXPECT_EQ(ok(form), Accept);
    EXPECT_EQ(client.catBirthYear[0].get(), 2035);
}

// What a failed write leaves on the disc and in the index is pinned in ClientFilesTest.
TEST_F(ClientFormRulesTest, ANewClientIsSavedWithItsIndexEntryOrNotAtAll)
{
    client.firstName.set("Previous");
    for (const std::string blocked : {"SmithAnn.DAT", "FIDEX.CTL"}) {
        block(blocked);
        fakes.ui.messages.clear();
        EXPECT_EQ(ok(annSmith()), StayOpen) << blocked;
        EXPECT_EQ(fakes.ui.titles(), Strings{"File Error"});
        EXPECT_EQ(client.firstName.str(), "Previous") << "the current client stays";
        fs::remove(temp.root() / blocked);
    }

    client.catName[3].set("Ghost");
    ClientForm form = annSmith();
    form.lastIn = "01/02/2009 extra";
    ASSERT_EQ(ok(form), Accept);
    EXPECT_TRUE(client.catName[3].isEmpty()) << "a new client starts from an empty record";
    EXPECT_EQ(client.mobile.str() + "|" + client.lastInDate.str(), "07700 900123::|01/02/2009 e");
    EXPECT_EQ(client.firstRegistered.get(), firstOfMonth(2009, 6) + 14 * 86400);
    EXPECT_EQ(index.entries[1].code.str(), "SmithAnn");

    // A full index refuses before any check.
    for (int i = 1; i < maxClients; ++i)
        appendEntry(index, "Someone", "CODE" + std::to_string(i));
    expectRefusal(annSmith("", ""), newClientRefusal(index).value());
}

TEST_F(ClientFormRulesTest, AnEditRoundTripsAndAConfirmedSurnameChangeIsSavedAtOnce)
{
    EXPECT_EQ(storedNoteLine("#R# Diabetic", false), "Diabetic");
    ClientForm form = editedThreeCatClient();
    form.notes[0] = "Diabetic";
    form.redNote[0] = true;
    ASSERT_EQ(ok(form), Accept);

    const ClientRecord saved = client;
    ClientForm reopened = clientFormFrom(client, fakes.clock);
    EXPECT_TRUE(reopened.redNote[0]);
    EXPECT_EQ(reopened.notes[0] + "|" + reopened.mobile, "Diabetic|07700 900123");
    EXPECT_EQ(reopened.cats[0],
              (CatRowEntries{"Tibbles", "Persian", "Grey", "2001", "f", "C+I-", "06/04"}));
    ASSERT_EQ(ok(reopened), Accept);
    EXPECT_EQ(bytesOf(client), bytesOf(saved)) << "opening and saving again changes nothing";

    reopened.known = "";
    reopened.cats[0].lastVaccination = "";
    EXPECT_EQ(ok(reopened), Accept);
    EXPECT_EQ(client.knownRating.get(), 0);
    EXPECT_EQ(client.catLastVaccination[0].get(), 0);

    // No keeps the surname and saves the rest.
    form.surname = "Jones";
    form.style = "Dr";
    EXPECT_EQ(ok(form), Accept);
    EXPECT_EQ(client.surname.str() + " " + client.style.str(), "Smith Dr");

    // A record that cannot be written leaves the current client and its key,
    // whether the surname change is refused or confirmed.
    const ClientRecord before = client;
    block("SmithAnn.DAT");
    form.style = "Mr";
    EXPECT_EQ(ok(form), StayOpen);
    questions.surnameYes = true;
    EXPECT_EQ(ok(form), StayOpen);
    EXPECT_EQ(fakes.ui.titles(), (Strings{"File Error", "File Error"}));
    EXPECT_EQ(bytesOf(client), bytesOf(before));
    EXPECT_EQ(index.entries[2].key.str(), "Smith");
    fs::remove(temp.root() / "SmithAnn.DAT");

    form.known = "11";
    EXPECT_EQ(ok(form), StayOpen);
    EXPECT_EQ(onDisc<ClientRecord>("SmithAnn.DAT").surname.str(), "Jones") << "YES saves at once";
    EXPECT_EQ(index.entries[2].key.str() + onDisc<ClientIndex>("FIDEX.CTL").entries[2].key.str(),
              "JonesJones");

    // An index that cannot be written leaves its key behind until the next OK.
    form.surname = "Brown";
    form.known = "2";
    block("FIDEX.CTL");
    EXPECT_EQ(ok(form), StayOpen);
    EXPECT_EQ(onDisc<ClientRecord>("SmithAnn.DAT").surname.str(), "Brown");
    EXPECT_EQ(index.entries[2].key.str(), "Jones");
    fs::remove(temp.root() / "FIDEX.CTL");
    EXPECT_EQ(ok(form), Accept);
    EXPECT_EQ(questions.surnameAlerts, 5) << "the stored surname is Brown by now";
    const IndexEntry entry = onDisc<ClientIndex>("FIDEX.CTL").entries[2];
    EXPECT_EQ(entry.key.str() + " " + entry.code.str(), "Brown SmithAnn") << "the code stays";
}

TEST_F(ClientFormRulesTest, ACatLeavingItsRowIsFiledInOtherCatsWhenTheSaveGoesThrough)
{
    ClientForm form = editedThreeCatClient();
    form.cats[1].name = "felix ";
    ASSERT_EQ(ok(form), Accept);
    EXPECT_TRUE(questions.asked.empty()) << "a change of case is no new name";
    form.cats[1].name = "Oscar";
    ASSERT_EQ(ok(form), Accept);
    EXPECT_EQ(client.catExtraCode[1].str(), "X1") << "a renamed cat keeps its tag";
    EXPECT_FALSE(folder.exists("SmithAnn.XC2"));

    // An emptied row: Cancel on DIALOG 50 or a failed filing keeps the cat.
    form.cats[1] = {};
    EXPECT_EQ(ok(form), StayOpen);
    questions.leaving = LeavingCatAnswer{LeavingReason::NewHome, "To her sister"};
    block("SmithAnn.XC2");
    EXPECT_EQ(ok(form), StayOpen);
    EXPECT_EQ(fakes.ui.titles(), Strings{"File Error"});
    EXPECT_EQ(client.catName[1].str(), "Oscar");
    fs::remove(temp.root() / "SmithAnn.XC2");
    ASSERT_EQ(ok(form), Accept);
    EXPECT_EQ(fakes.ui.messages.back(),
              (Message{"Oscar has been moved to Anne Smith's 'Other Cats' list", "Other Cats"}));
    EXPECT_EQ(client.catName[1].str() + client.catExtraCode[1].str(), "SootyX2") << "packed";
    EXPECT_EQ(bytesOf(onDisc<ClientRecord>("SmithAnn.DAT")), bytesOf(client));

    // A new name said to be a new cat files the old one.
    form = clientFormFrom(client, fakes.clock);
    form.cats[1] = {"Bella", "Ragdoll", "White", "2009", "F", "", ""};
    questions.nameChoice = CatNameChoice::NewCat;
    ASSERT_EQ(ok(form), Accept);
    EXPECT_EQ(questions.asked, (Strings{"felix >Oscar", "left Oscar", "left Oscar", "left Oscar",
                                        "Sooty>Bella", "left Sooty"}));
    EXPECT_TRUE(client.catExtraCode[1].isEmpty());
    const OtherCatsFile others = onDisc<OtherCatsFile>("SmithAnn.XC2");
    EXPECT_EQ(others.cats[8].name.str() + ", " + others.cats[8].reason.str() + ", " +
                  others.cats[8].history.str(),
              "Oscar, Rehomed, Born 2003,   Departed 15/06/09,   age 6");
    EXPECT_EQ(others.cats[9].name.str() + " " + others.cats[9].breed.str(), "Sooty Moggy")
        << "not Bella's breed";
}

} // namespace
} // namespace purrlodge