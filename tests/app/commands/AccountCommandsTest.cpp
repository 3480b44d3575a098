#include <filesystem>
#include <gtest/gtest.h>

#include "accounts/AccountFiling.h"
#include "app/Session.h"
#include "app/commands/ArrivalSheet.h"
#include "app/commands/IssueAccount.h"
#include "app/commands/PastAccounts.h"
#include "clients/AutoMemo.h"
#include "housekeeping/AdmissionRegister.h"
#include "store/ClientFiles.h"
#include "store/IndexOperations.h"
#include "store/SafeFile.h"
#include "support/DataSetGenerator.h"
#include "support/FakePorts.h"
#include "support/FakeQuestions.h"
#include "support/TempFolder.h"

namespace purrlodge {
namespace {

using Job = testing::FakePrinter::Job;
using Jobs = std::vector<Job>;
using Lines = std::vector<std::string>;
using Typing = testing::ScriptedForm<AccountPreparationForm, AccountPreparation>::Step;

const std::string code = "SMITHANN";

void pressOk(AccountPreparationForm&, AccountPreparation&)
{}

// The account commands on a fresh data folder: Mrs Ann Smith with three cats,
// two of them booked in from 01/03/25 to 05/03/25, the last account issued
// No.1041, the rates 10, 18 and 25 a day for one to three cats.
class AccountCommandsTest : public ::testing::Test {
protected:
    void SetUp() override
    {
        fakes.clock.setUtc(2025, 3, 20, 14, 5);
        session.currentYear = 2025;
        const float rates[] = {10.0f, 18.0f, 25.0f};
        for (int cats = 0; cats < 3; ++cats)
            session.rates.presentRate[cats].set(rates[cats]);
        session.rates.perDay.set(1);
        session.rates.currency.set(static_cast<std::uint32_t>(Currency::Sterling));
        session.exchangeRate.pencePerEuro.set(80.0f);

        ClientRecord client{};
        client.style.set("Mrs");
        client.firstName.set("Ann");
        client.surname.set("Smith");
        const char* cats[] = {"Tibbles", "Felix", "Smudge"};
        for (int cat = 0; cat < 3; ++cat)
            client.catName[cat].set(cats[cat]);
        StayRecord stay{};
        stay.arrivalDate.set("01/03/25");
        stay.departureDate.set("05/03/25");
        stay.catInStay[0].set(1);
        stay.catInStay[1].set(1);
        appendEntry(session.index, "Smith", code);
        session.index.lastAccountNumber.set(1041);
        ASSERT_TRUE(writeClientRecord(session.folder, code, client) &&
                    writeStayRecord(session.folder, code, stay) &&
                    writeIndex(session.folder, session.index));
    }

    void issue(std::deque<Typing> typing)
    {
        questions.choose("Smith");
        questions.preparing.steps = std::move(typing);
        issueAccount(session, questions);
    }

    // Books the next stay away from the last one, so nothing looks similar.
    static Typing stayFrom(std::string arrival, std::string departure)
    {
        return [=](AccountPreparationForm& form, AccountPreparation& preparation) {
            ASSERT_EQ(preparation.alterDates(form, arrival, departure).verdict,
                      AccountDatesVerdict::GoOn);
        };
    }

    void fileAccount(int number, const char* arrival, const char* departure)
    {
        AccountBook book{};
        readAccountBook(session.folder, code, book);
        AccountRecord account{};
        account.receiptNumber.set(number);
        account.arrivalDate.set(arrival);
        account.departureDate.set(departure);
        account.finalBalance.set(50.0f);
        account.catNames[0].set("Tibbles");
        placeAccount(book, account, false);
        ASSERT_TRUE(writeAccountBook(session.folder, code, book));
    }

    [[nodiscard]] AccountBook book() const
    {
        AccountBook filed{};
        readAccountBook(session.folder, code, filed);
        return filed;
    }
    [[nodiscard]] std::vector<int> numbersFiled() const
    {
        std::vector<int> numbers;
        for (const AccountRecord& account : book().accounts)
            if (account.receiptNumber.get() != 0)
                numbers.push_back(account.receiptNumber.get());
        return numbers;
    }
    [[nodiscard]] int counterOnDisc() const
    {
        ClientIndex index{};
        readIndex(session.folder, index);
        EXPECT_EQ(index.lastAccountNumber.get(), session.index.lastAccountNumber.get())
            << "memory and disc agree";
        return index.lastAccountNumber.get();
    }
    // Makes the next crash-safe write of a data file fail.
    void blockWritesOf(const std::string& name)
    {
        std::filesystem::create_directory(temp.root() / (name + std::string(temporaryFileEnding)));
    }
    void unblockWritesOf(const std::string& name)
    {
        std::filesystem::remove(temp.root() / (name + std::string(temporaryFileEnding)));
    }

    testing::TempFolder temp;
    testing::FakePorts fakes;
    Session session{fakes.ports(), temp.path()};
    testing::ScriptedAccountQuestions questions;
};

TEST_F(AccountCommandsTest, AnAccountIsPreparedFromTheStayNumberedPrintedFiledAndCounted)
{
    AutoMemo memo{};
    memo.text.set("Bring her blanket back");
    ASSERT_TRUE(session.folder.write(code + ".ANT", memo));
    questions.deleteMemo = true;

    issue({pressOk});
    ASSERT_EQ(questions.preparing.shown.size(), 1u);
    const AccountPreparationForm& opened = questions.preparing.shown[0];
    EXPECT_EQ(opened.arrival + "-" + opened.departure + " " + opened.receiptNumber,
              "01/03/25-05/03/25 1042");
    EXPECT_TRUE(opened.cats[0].ticked && opened.cats[1].ticked && !opened.cats[2].ticked);
    EXPECT_EQ(questions.asked, Lines{"An Auto Memo exists for Ann Smith: Bring her blanket back"});
    EXPECT_FALSE(session.folder.exists(code + ".ANT")) << "Delete removes the memo";

    EXPECT_EQ(fakes.printer.jobs, (Jobs{{"Client's Account", false}, {"Account Copy", false}}));
    const AccountRecord& filed = book().accounts[9];
    EXPECT_EQ(filed.receiptNumber.get(), 1042);
    EXPECT_EQ(filed.grossBoard.get(), 90.0f) << "two cats, 5 days at 18.00";
    EXPECT_EQ(filed.filedTime.get(), fakes.clock.now());
    EXPECT_EQ(counterOnDisc(), 1042);
    ClientRecord client{};
    readClientRecord(session.folder, code, client);
    EXPECT_EQ(client.lastInDate.str() + client.lastOutDate.str(), "01/03/2505/03/25");

    fakes.ui.messages.clear();
    session.diagnostics = true;
    issue({stayFrom("10/04/2025", "12/04/25")});
    EXPECT_EQ(numbersFiled(), (std::vector<int>{1042, 1043}));
    EXPECT_EQ(book().accounts[9].arrivalDate.str(), "10/04/25");
    EXPECT_EQ(counterOnDisc(), 1043);
    EXPECT_EQ(fakes.ui.titles(), Lines{"Finding Error"}) << "Stage 'CMAC-4' Completed";
}

TEST_F(AccountCommandsTest, EachAnswerToASimilarAccountNumbersAndCountsAsItSays)
{
    struct Case {
        SimilarAccountAnswer answer;
        std::vector<int> filed;
        int counter;
    };
    const Case cases[] = {{SimilarAccountAnswer::Substitute, {1041}, 1041},
                          {SimilarAccountAnswer::KeepBoth, {1041, 1042}, 1042},
                          {SimilarAccountAnswer::GoBack, {1041, 1042}, 1041}};
    for (const Case& c : cases) {
        std::filesystem::remove(temp.root() / (code + ".ACR"));
        session.index.lastAccountNumber.set(1041);
        fileAccount(1041, "04/03/25", "09/03/25"); // arrival three days later
        questions.similarAnswers = {c.answer};
        questions.asked.clear();
        issue({pressOk});
        EXPECT_EQ(numbersFiled(), c.filed);
        EXPECT_EQ(counterOnDisc(), c.counter);
        EXPECT_EQ(book().accounts[9].arrivalDate.str(), "01/03/25") << "the new account is newest";
        ASSERT_EQ(questions.asked.size(), 1u);
        EXPECT_TRUE(questions.asked[0].starts_with(
            "This account No.1042 (Arrival Date 01/03/25, Depart date 05/03/25) looks very "
            "similar to a previous account Numbered 1041 (Arrival date 04/03/25"));
    }
    // After Go Back the next account is given the same number.
    issue({stayFrom("10/04/25", "12/04/25")});
    EXPECT_EQ(numbersFiled(), (std::vector<int>{1041, 1042, 1042}));
    EXPECT_EQ(counterOnDisc(), 1042);
}

TEST_F(AccountCommandsTest, UnprintedPagesFileNothingButOmittedOnesFileTheAccount)
{
    for (const auto& outcomes :
         {std::deque<PrintOutcome>{PrintOutcome::Cancelled},
          std::deque<PrintOutcome>{PrintOutcome::Printed, PrintOutcome::Failed}}) {
        fakes.printer.outcomes = outcomes;
        questions.similarAnswers = {SimilarAccountAnswer::GoBack};
        issue({pressOk});
        EXPECT_FALSE(session.folder.exists(code + ".ACR"));
        EXPECT_EQ(counterOnDisc(), 1041);
    }
    // The copy alone may ask for the printer.
    fakes.printer.jobs.clear();
    session.printDialog.modeInForce = printDialogEveryTime;
    issue({[](AccountPreparationForm& form, AccountPreparation&) { form.omitTopSheet = true; }});
    EXPECT_EQ(fakes.printer.jobs, (Jobs{{"Account Copy", true}}));
    EXPECT_EQ(book().accounts[9].omitTopSheet.get(), 1);

    fakes.printer.jobs.clear();
    issue({[](AccountPreparationForm& form, AccountPreparation& preparation) {
        stayFrom("10/04/25", "12/04/25")(form, preparation);
        form.omitTopSheet = form.omitCopy = true;
    }});
    EXPECT_TRUE(fakes.printer.jobs.empty());
    EXPECT_EQ(numbersFiled(), (std::vector<int>{1042, 1043})) << "filed all the same";
}

TEST_F(AccountCommandsTest, OkChecksTheExtraTheNumberTheCatsAndTheDatesInTurn)
{
    session.rates.standardExtraName.set("Grooming");
    session.rates.standardExtraCharge.set(5.0f);
    questions.longStayRight = {false, true};
    issue({
        pressOk, // no decision on the standard extra
        [](AccountPreparationForm& form, AccountPreparation&) {
            chooseStandardExtra(form.standardExtra, true);
            form.receiptNumber = "0";
        },
        [](AccountPreparationForm& form, AccountPreparation&) {
            form.receiptNumber = "777"; // typed over
            form.cats[0].ticked = form.cats[1].ticked = false;
        },
        [](AccountPreparationForm& form, AccountPreparation&) {
            form.cats[2].ticked = true;
            form.arrival = "31/04/25";
        },
        [](AccountPreparationForm& form, AccountPreparation&) {
            form.arrival = "01/03/25";
            form.departure = "30/03/25";
        },
        pressOk, // the Long Stay Query answered "Wrong" above, "Right" now
    });
    EXPECT_EQ(fakes.ui.titles(), (Lines{"Data Omission", "Data Error", "Names no Ticked"}));
    EXPECT_EQ(questions.asked,
              (Lines{"The date does not exist in that month ! / Arrival/Start date",
                     "More than 3 weeks?", "More than 3 weeks?"}));

    const AccountRecord& filed = book().accounts[9];
    EXPECT_EQ(filed.receiptNumber.get(), 777) << "kept as typed";
    EXPECT_EQ(counterOnDisc(), 1041) << "a typed number does not move the counter";
    EXPECT_EQ(filed.standardExtraCharged.get(), 1);
    EXPECT_EQ(filed.finalBalance.get(), 30 * 10.0f + 5.0f) << "one cat for 30 days, and the extra";
}

TEST_F(AccountCommandsTest, AFailedSaveIsToldAndNothingIsClaimedThatTheDiscDoesNotHold)
{
    blockWritesOf(code + ".DAT");
    issue({pressOk, [&](AccountPreparationForm&, AccountPreparation&) {
               unblockWritesOf(code + ".DAT");
               blockWritesOf(code + ".ACR");
           }});
    EXPECT_EQ(questions.preparing.verdicts,
              (std::vector{FormVerdict::StayOpen, FormVerdict::Accept}));
    EXPECT_EQ(fakes.ui.titles(), (Lines{"File Error", "File Error"}));
    EXPECT_FALSE(session.folder.exists(code + ".ACR"));
    EXPECT_EQ(counterOnDisc(), 1041) << "the account is not filed, so not counted";

    unblockWritesOf(code + ".ACR");
    blockWritesOf("FIDEX.CTL");
    issue({pressOk});
    EXPECT_EQ(numbersFiled(), std::vector<int>{1042});
    EXPECT_EQ(session.index.lastAccountNumber.get(), 1041) << "the index on disc still says so";
}

TEST_F(AccountCommandsTest, PastAccountsAreSummarisedReprintedAndDeleted)
{
    fileAccount(1001, "01/01/25", "03/01/25");
    fileAccount(1002, "01/02/25", "03/02/25");
    fileAccount(1003, "01/03/25", "03/03/25");
    questions.choose("Smith");
    questions.listChoices = {PastAccountChoice{PastAccountAction::Summary, 3}, // the blank line
                             PastAccountChoice{PastAccountAction::Summary, 0},
                             PastAccountChoice{PastAccountAction::Reprint, 1},
                             PastAccountChoice{PastAccountAction::Delete, 2},
                             PastAccountChoice{PastAccountAction::Delete, 1},
                             std::nullopt};
    questions.deleteAnswers = {false, true};
    viewPastAccounts(session, questions);

    EXPECT_EQ(fakes.ui.titles(), Lines{"Selection Error"});
    ASSERT_EQ(questions.summaries.size(), 1u);
    EXPECT_EQ(questions.summaries[0].at(0), "Mrs Ann Smith\tReceipt No. 1001");
    EXPECT_EQ(fakes.printer.jobs, (Jobs{{"Past Account", false}}));
    EXPECT_EQ(numbersFiled(), (std::vector<int>{1001, 1003})) << "No.1003 kept, No.1002 deleted";
    ASSERT_EQ(questions.lists.size(), 6u);
    EXPECT_EQ(questions.lists.back().lines.size(), 4u) << "two accounts, a blank and the total";
}

TEST_F(AccountCommandsTest, ANumberIsFoundInEveryBookAfterItsEntryIsChecked)
{
    fileAccount(1042, "01/01/25", "03/01/25");
    ClientRecord other{};
    other.style.set("Mr");
    other.firstName.set("Tom");
    other.surname.set("Jones");
    ASSERT_TRUE(writeClientRecord(session.folder, "JONESTOM", other));
    AccountBook joness{};
    joness.accounts[9].receiptNumber.set(1042);
    ASSERT_TRUE(writeAccountBook(session.folder, "JONESTOM", joness));

    questions.accountNumber.entries = {"", "0", "1042"};
    findNumberedAccount(session, questions);
    EXPECT_EQ(fakes.ui.titles(), (Lines{"Data Missing", "Data Error"}));
    ASSERT_EQ(questions.found.size(), 1u);
    const Lines& found = questions.found[0];
    EXPECT_EQ(found.at(0), "Mr Tom Jones") << "books in file-name order";
    EXPECT_NE(std::find(found.begin(), found.end(), "Mrs Ann Smith"), found.end());

    questions.accountNumber.entries = {"999"};
    findNumberedAccount(session, questions);
    EXPECT_EQ(questions.found.back().back(), "   No account was found numbered 999");
}

TEST_F(AccountCommandsTest, ABookedStayIsCheckedSavedPrintedAndFoundByTheAccount)
{
    AutoMemo memo{};
    memo.text.set("Felix needs his drops");
    ASSERT_TRUE(session.folder.write(code + ".ANT", memo));
    session.printDialog.modeInForce = printDialogEveryTime;
    fakes.profile.values["arrsheets"] = "123";
    questions.choose("Smith");
    questions.longStayRight = {false};
    const auto dates = [](std::string arrival, std::string departure) {
        return [=](ArrivalForm& form) {
            form.arrival = arrival;
            form.departure = departure;
        };
    };
    questions.arrival.steps = {
        dates("1/4", "05/04/25"),
        dates("31/04/25", "05/04/25"),
        dates("06/04/25", "05/04/25"),
        dates("01/04/25", "30/04/25"), // "Wrong"
        [](ArrivalForm& form) {
            form.departure = "05/04/2025";
            form.cats[0].ticked = form.cats[1].ticked = form.cats[2].ticked = false;
        },
        [](ArrivalForm& form) {
            form.cats[0].ticked = form.cats[2].ticked = true;
            form.emergencyContact = "Jo 07700 900123";
            form.sheets = {false, true, true};
        },
    };
    makeArrivalSheet(session, questions);

    EXPECT_EQ(
        questions.asked,
        (Lines{"An Auto Memo exists for Ann Smith: Felix needs his drops",
               "You seem to have entered wrong dates\nPlease check and try again / "
               "Arrival/Start date",
               "The date does not exist in that month ! / Arrival/Start date",
               "Departing/Starting before arrival! / Departure/End date", "More than 3 weeks?"}));
    EXPECT_EQ(fakes.ui.titles(), Lines{"Names no Ticked"});
    EXPECT_TRUE(questions.arrival.shown.at(0).arrival.empty()) << "the last stay is over";
    EXPECT_EQ(fakes.printer.jobs, (Jobs{{"Arrival Sheet-2", true}, {"Return Shee (3)", false}}));
    EXPECT_EQ(fakes.profile.read(arrivalSheetsKey), "23");
    StayRecord stay{};
    readStayRecord(session.folder, code, stay);
    EXPECT_EQ(stay.departureDate.str(), "05/04/25") << "the four-digit year shortened";
    EXPECT_EQ(emergencyContactOf(stay), "Jo 07700 900123");

    // Issue Account finds the dates and the cats.
    questions.asked.clear();
    issue({pressOk});
    const AccountPreparationForm& account = questions.preparing.shown.at(0);
    EXPECT_EQ(account.arrival + "-" + account.departure, "01/04/25-05/04/25");
    EXPECT_TRUE(account.cats[0].ticked && !account.cats[1].ticked && account.cats[2].ticked);
}

TEST_F(AccountCommandsTest, TheArrivalSheetsAskForThePrinterOnceAndStopWhenOneDoesNotPrint)
{
    session.printDialog.modeInForce = printDialogEveryTime;
    fakes.printer.outcomes = {PrintOutcome::Printed, PrintOutcome::Cancelled};
    questions.choose("Smith");
    questions.arrival.steps = {[](ArrivalForm& form) {
        form.arrival = "01/04/25";
        form.departure = "05/04/25";
    }};
    makeArrivalSheet(session, questions);
    EXPECT_EQ(fakes.printer.jobs, (Jobs{{"Arrival Sheet-1", true}, {"Arrival Sheet-2", false}}));
}

TEST_F(AccountCommandsTest, TheRegisterListsEachStayOfThePeriodOnceOverItsPages)
{
    fileAccount(1001, "02/03/25", "04/03/25"); // in March, not booked
    fileAccount(1002, "01/02/25", "03/02/25"); // in February
    StayRecord stay{};
    readStayRecord(session.folder, code, stay);
    stay.furtherLines[0].set("Jo 07700 900123");
    ASSERT_TRUE(writeStayRecord(session.folder, code, stay));
    fileAccount(1003, "01/03/25", "05/03/25"); // the booked stay, accounted for

    const std::vector<AdmissionEntry> march =
        collectAdmissions(session.folder, session.index, dateToNumber("01/03/25"),
                          dateToNumber("31/03/25"), fakes.clock);
    ASSERT_EQ(march.size(), 2u);
    EXPECT_EQ(march[0].arrival + " " + march[0].emergencyContact, "01/03/25 Jo 07700 900123");
    EXPECT_EQ(march[0].cats, (Lines{"Tibbles  (?, age ?)", "Felix  (?, age ?)"}));
    EXPECT_EQ(march[1].arrival, "02/03/25");
    EXPECT_EQ(march[1].owner, "Mrs Ann Smith");

    questions.period.entries = {{"01/03/25", "31/02/25"}, {"01/03/25", "31/03/25"}};
    printAdmissionRegister(session, questions);
    EXPECT_EQ(questions.periodsShown, Lines{"01/03/25-31/03/25"}) << "this month";
    EXPECT_EQ(questions.asked,
              Lines{"The date does not exist in that month ! / Departure/End date"});
    EXPECT_EQ(fakes.printer.jobs, (Jobs{{"Admission Register", false}}));
}

// That the pages fit the buffer is pinned in AdmissionRegisterPagesTest.
TEST_F(AccountCommandsTest, AFullDataSetsRegisterCollectsEveryFiledAccount)
{
    const ClientIndex index = testing::generateDataSet(session.folder, maxClients, 3);
    const std::vector<AdmissionEntry> entries = collectAdmissions(
        session.folder, index, dateToNumber("01/01/24"), dateToNumber("31/12/24"), fakes.clock);
    EXPECT_EQ(entries.size(), std::size_t{maxClients} * accountBookSlots);
}

} // namespace
} // namespace purrlodge
