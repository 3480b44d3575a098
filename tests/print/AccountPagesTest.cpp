#include "print/AccountPages.h"

#include <deque>
#include <gtest/gtest.h>
#include <string>
#include <vector>

#include "print/PrintBuffer.h"
#include "print/PrintDialogRule.h"
#include "print/PrintJobRunner.h"
#include "store/RandomDraw.h"
#include "support/FakePorts.h"
#include "support/SampleAccount.h"

namespace purrlodge {
namespace {

using Lines = std::vector<std::string>;

const std::string pound = "\xA3";
const std::string euro = "\x80";

class AccountPagesTest : public ::testing::Test, protected testing::SampleAccount {
protected:
    AccountPagesTest()
    {
        values.currencySign = 0xA3;
        values.inSterling = true;
        values.accountNote = "Thank you";
        values.namesLineOn = true;
    }

    // A stay split across a rate change, charged per night, with every
    // adjustment. The stored net fees differ from the derived ones by a penny.
    void splitWithEverything()
    {
        values.perDay = false;
        account.arrivalDate.set("28/02/05");
        account.oldRateEndDate.set("01/03/05");
        account.newRateStartDate.set("01/03/05");
        account.daysAtOldRate.set(1);
        account.daysAtNewRate.set(4);
        account.oldRate.set(20.0f);
        account.grossBoard.set(120.0f);
        account.discountDescription.set("Loyal");
        account.discountPercentage.set(10.0f);
        account.discountAmount.set(12.0f);
        account.netBoard.set(107.99f);
        account.extrasDescription.set("Vet visit");
        account.extrasAmount.set(12.5f);
        account.standardExtraCharged.set(1);
        values.standardExtraName = "Grooming";
        values.standardExtraAmount = 7.5f;
        account.creditDescription.set("Deposit");
        account.creditAmount.set(20.0f);
        account.finalBalance.set(108.0f);
    }

    Lines lines() const
    {
        Lines result;
        for (int slot = 0; slot < buffer.count; ++slot)
            result.push_back("[" + buffer.texts[slot] + "] " + buffer.formats[slot]);
        return result;
    }

    // `count` lines from the first whose text starts with `start`.
    Lines section(const std::string& start, std::size_t count) const
    {
        const Lines all = lines();
        for (std::size_t line = 0; line < all.size(); ++line)
            if (all[line].starts_with(start))
                return Lines(all.begin() + line, all.begin() + std::min(all.size(), line + count));
        return {};
    }

    Lines accountPage()
    {
        fillClientAccount(buffer, values, draw);
        return lines();
    }
    Lines copyPage()
    {
        fillAccountCopy(buffer, values);
        return lines();
    }

    testing::FakeClock clock;
    testing::FakeRandom random{{13}};
    RandomDraw draw{random, clock};
    AccountPageValues values{establishment, client, account, exchange, clock};
    PrintBuffer buffer;
};

TEST_F(AccountPagesTest, AccountForOneRateInPoundsWithEuros)
{
    EXPECT_EQ(
        accountPage(),
        (Lines{
            "[ ] 0b, 20, 150, 2, n, 000, C",
            "[ ] 0b, 20, 150, 2, n, 000, C",
            "[Whiskers Lodge] 0b, 8, 50, 2, u, 000, C",
            "[(Jo & Sam)] 5b, 8, 0, 3, n, 000, C",
            "[(Jo Bloggs)] 5b, 8, 0, 3, n, 000, C",
            "[1 Mill Lane] 3b, 12, 0, 1, n, 000, C",
            "[Upton] 3b, 12, 0, 1, n, 000, C",
            "[Kent] 3b, 11, 0, 1, n, 000, C",
            "[CT1 2AB] 4b, 8, 0, 1, n, 000, C",
            "[Tel: 01227 555  Fax: 01227 556  ] 5, 11, 0, 3, n, 000, C",
            "[E-mail:  jo@example.com] 5, 12, 0, 3, n, 000, C",
            "[No.1042] 2b, 25, 0, 3, n, 000, A",
            "[ ] 1, 12, 0, 3, n, 000, A",
            "[on Saturday 5th March 2005] 3b, 15, 0, 3, n, 000, A",
            "[Mrs Ann Smith] 2, 3, 0, 1, n, 000, A",
            "[2 High St] 4, 4, 0, 1, n, 000, A",
            "[Canterbury] 4, 4, 0, 1, n, 000, A",
            "[ ] 4, 4, 0, 1, n, 000, A",
            "[ ] 1, 4, 0, 1, n, 000, A",
            "[Boarding: ] 2, 4, 0, 1, n, 000, A",
            "[ ] 3, 4, 0, 1, n, 000, A",
            "[Tibbles, Felix, Smudge, ] 2b, 5, 0, 1, n, 000, A",
            "[Tom, Kitty, ] 2b, 5, 0, 1, n, 000, A",
            "[ ] 1, 4, 0, 1, n, 000, A",
            "[Boarding from: on Tuesday 1st March 2005] 2, 4, 0, 1, n, 000, A",
            "[                     to: on Saturday 5th March 2005] 2, 4, 0, 1, n, 000, A",
            "[ ] 1, 4, 0, 1, n, 000, A",
            "[5 days  @ " + pound + "25.00 per day] 3, 6, 0, 1, n, 000, A",
            "[ ] 1, 4, 0, 1, n, 000, A",
            "[Board total " + pound + "125.00] 3, 6, 0, 1, n, 000, A",
            "[ ] 3, 6, 0, 1, n, 000, A",
            "[Balance due: " + pound + "125.00     (" + euro + "200.00)] 3b, 12, 0, 1, u, 000, A",
            "[ ] 0b, 15, 0, 1, n, 000, A",
            "[Thank you] 3, 0, 0, 1, n, 900, A",
            "[ ] 3, 6, 0, 1, n, 000, A",
            "[Please make cheques payable to: 'Whiskers Lodge Ltd'] 3, 6, 0, 1, n, 900, A",
        }));
}

TEST_F(AccountPagesTest, CopyOfASplitStayWithEveryAdjustment)
{
    splitWithEverything();
    values.copyInColour = true;
    EXPECT_EQ(
        copyPage(),
        (Lines{
            "[ ] 0b, 20, 150, 2, n, 000, C",
            "[Whiskers Lodge] 2b, 20, 50, 2, u, 009, C",
            "[] 3b, 25, 0, 3, n, 000, A",
            "[No.1042] 3b, 25, 0, 3, n, 900, A",
            "[ ] 3b, 25, 0, 3, n, 000, A",
            "[on Saturday 5th March 2005] 3b, 15, 0, 3, n, 000, A",
            "[ ] 3, 12, 0, 3, n, 000, A",
            "[Mrs Ann Smith] 3, 3, 0, 1, n, 000, A",
            "[2 High St] 3, 4, 0, 1, n, 000, A",
            "[Canterbury] 3, 4, 0, 1, n, 000, A",
            "[ ] 4, 4, 0, 1, n, 000, A",
            "[Tel: 01227 777] 5, 4, 0, 3, n, 000, A",
            "[ ] 1, 4, 0, 1, n, 000, A",
            "[Cats: ] 3b, 4, 0, 1, n, 000, A",
            "[ ] 4, 4, 0, 1, n, 000, A",
            "[Tibbles, Felix, Smudge, ] 2b, 5, 0, 1, n, 000, A",
            "[Tom, Kitty, ] 2b, 5, 0, 1, n, 000, A",
            "[ ] 3, 4, 0, 1, n, 000, A",
            "[Board (Old Rate) from 28/02/05 to 01/03/05 (1 days @ 20.00)] 4, 4, 0, 1, n, 000, A",
            "[] 4, 4, 0, 1, n, 000, A",
            "[Board (New Rate) from 01/03/05 to 05/03/05 (4 days @ 25.00)] 4, 4, 0, 1, n, 000, A",
            "[ ] 3, 4, 0, 1, n, 000, A",
            "[ ] 3, 4, 0, 1, n, 000, A",
            "[Board total " + pound + "120.00] 3, 6, 0, 1, n, 000, A",
            "[Allowed Loyal Discount (10.00%) = " + pound + "12.00] 3, 6, 0, 1, n, 000, A",
            "[ ] 4, 6, 0, 1, n, 000, A",
            "[Net Boarding fees " + pound + "108.00] 3, 6, 0, 1, n, 000, A",
            "[ ] 3, 6, 0, 1, n, 000, A",
            "[Extras: Vet visit  " + pound + "12.50] 3, 6, 0, 1, n, 000, A",
            "[Grooming  " + pound + "7.50] 3, 6, 0, 1, n, 000, A",
            "[ ] 3, 6, 0, 1, n, 000, A",
            "[Rebate: Deposit  " + pound + "20.00] 3, 6, 0, 1, n, 000, A",
            "[ ] 3, 6, 0, 1, n, 000, A",
            "[Final Balance: " + pound + "108.00     (" + euro + "172.80)] 3, 15, 0, 1, u, 000, A",
            "[ ] 0b, 15, 0, 1, n, 000, A",
            "[Thank you] 3, 1, 0, 1, n, 000, A",
            "[] 0b, 15, 0, 1, n, 000, A",
            "[Exchange rate " + euro + "1 = 62.5p] 3, 4, 0, 1, n, 000, A",
        }));
}

TEST_F(AccountPagesTest, AccountOfASplitStayPrintsTheStoredNetFees)
{
    splitWithEverything();
    accountPage();
    // Where it differs from the copy: the boarding total, "Allow", the
    // stored net fees and the "due" wording.
    EXPECT_EQ(section("[Total Boarding", 1)[0],
              "[Total Boarding: " + pound + "120.00] 4, 4, 0, 1, n, 000, A");
    EXPECT_EQ(section("[Allow", 2),
              (Lines{"[Allow Loyal Discount (10.00%) = " + pound + "12.00] 3, 6, 0, 1, n, 000, A",
                     "[Net Boarding fees " + pound + "107.99] 3, 6, 0, 1, n, 000, A"}));
    EXPECT_EQ(section("[Final", 1)[0], "[Final Balance due: " + pound + "108.00     (" + euro +
                                           "172.80)] 3b, 12, 0, 1, u, 000, A");

    // No new-rate days: no new-rate line on either page.
    account.daysAtNewRate.set(0);
    accountPage();
    EXPECT_EQ(section("[Board (", 2)[1], "[ ] 3, 4, 0, 1, n, 000, A");
    copyPage();
    EXPECT_EQ(section("[Board (", 3)[2], "[ ] 3, 4, 0, 1, n, 000, A");
}

TEST_F(AccountPagesTest, OneRateChargedPerNight)
{
    values.perDay = false;
    values.currencySign = '$';
    account.daysCharged.set(4);
    accountPage();
    EXPECT_EQ(section("[4 nights", 1)[0], "[4 nights  @ $25.00 per night] 3, 6, 0, 1, n, 000, A");
    copyPage();
    EXPECT_EQ(section("[Boarding from", 2),
              (Lines{
                  "[Boarding from 01/03/05 to 05/03/05 (4 nights)] 4, 4, 0, 1, n, 000, A",
                  "[@ $25.00 per night] 4, 6, 0, 1, n, 000, A",
              }));
}

TEST_F(AccountPagesTest, BalanceWordingAndTheEuroAmount)
{
    const auto balance = [this] { return section("[Balance due", 1); };
    // Any one adjustment gives the final wording.
    const auto finalWording = [this](auto change) {
        const AccountRecord saved = account;
        change();
        accountPage();
        account = saved;
        return !section("[Final Balance due", 1).empty();
    };
    EXPECT_TRUE(finalWording([this] { account.discountPercentage.set(0.01f); }));
    EXPECT_TRUE(finalWording([this] { account.creditAmount.set(0.01f); }));
    EXPECT_TRUE(finalWording([this] { account.extrasAmount.set(0.01f); }));
    EXPECT_TRUE(finalWording([this] { account.standardExtraCharged.set(1); }));
    // Amounts of 0 or less print none of their lines and keep the plain wording.
    account.extrasAmount.set(-1.0f);
    account.creditAmount.set(-1.0f);
    account.discountPercentage.set(-1.0f);
    EXPECT_EQ(accountPage().size(), 36u);
    EXPECT_EQ(balance().size(), 1u);

    exchange.showEuros.set(0);
    accountPage();
    EXPECT_EQ(balance()[0], "[Balance due: " + pound + "125.00] 3b, 12, 0, 1, u, 000, A");
    exchange.showEuros.set(1);
    values.inSterling = false;
    values.currencySign = 0x80;
    copyPage();
    EXPECT_EQ(section("[Balance", 1)[0], "[Balance: " + euro + "125.00] 3, 15, 0, 1, u, 000, A");
}

TEST_F(AccountPagesTest, HeadingChoices)
{
    values.accountInColour = true;
    values.nameColourIndex = 4;
    accountPage();
    EXPECT_EQ(section("[Whiskers", 3), (Lines{
                                           "[Whiskers Lodge] 0b,  8,  50,  2,  u, 900,  C",
                                           "[(Jo & Sam)] 5b, 8, 0, 3, n, 009, C",
                                           "[(Jo Bloggs)] 5b, 8, 0, 3, n, 000, C",
                                       }));

    // A manager starting with a blank in either place prints a blank line.
    values.namesLineOn = false;
    for (const char* manager : {" Jo", "J o"}) {
        establishment.manager.set(manager);
        accountPage();
        EXPECT_EQ(section("[Whiskers", 3)[1], "[ ] 5b, 8, 0, 3, n, 000, C") << manager;
    }

    // Not chosen for accounts (or no name): the manager is printed as he is.
    establishment.displayFlags.set("C");
    establishment.chequesColour.set("**BLACK**");
    accountPage();
    EXPECT_EQ(section("[ ]", 3)[2], "[(J o)] 5b, 8, 0, 3, n, 000, C");
    EXPECT_TRUE(section("[Whiskers", 1).empty());
    EXPECT_TRUE(section("[Please", 1)[0].ends_with("'] 3, 6, 0, 1, n, 000, A"));

    establishment.name.clear();
    copyPage();
    EXPECT_EQ(section("[ ]", 2)[1], "[] 3b, 25, 0, 3, n, 000, A");
}

TEST_F(AccountPagesTest, CatLines)
{
    // Three cats fill the first line and leave the second empty.
    account.catNotBoarded[1].set(1);
    account.catNotBoarded[4].set(1);
    accountPage();
    EXPECT_EQ(section("[Tibbles", 2), (Lines{"[Tibbles, Smudge, Tom, ] 2b, 5, 0, 1, n, 000, A",
                                             "[] 2b, 5, 0, 1, n, 000, A"}));
    // A used slot needs a letter or digit; fewer than three cats, one line.
    client.catName[2].set(" - ");
    copyPage();
    EXPECT_EQ(section("[Tibbles", 2),
              (Lines{"[Tibbles, Tom, ] 2b, 5, 0, 1, n, 000, A", "[ ] 3, 4, 0, 1, n, 000, A"}));
}

// Records each job's title, prompt and page, and answers from a script.
struct ScriptedRunner : PrintJobRunner {
    bool run(const std::string& title, bool prompt, PrintBuffer& buffer) override
    {
        // The fourteenth line tells the two pages apart.
        jobs.push_back(title + (prompt ? " +dialog" : "") + " (" + buffer.texts[13] + ")");
        const bool printed = answers.empty() || answers.front();
        if (!answers.empty())
            answers.pop_front();
        return printed;
    }
    std::vector<std::string> jobs;
    std::deque<bool> answers;
};

TEST_F(AccountPagesTest, PrintingThePair)
{
    const std::string accountJob = "Client's Account +dialog (on Saturday 5th March 2005)";
    const std::string copyJob = "Account Copy (Cats: )";
    const auto print = [this](int mode, std::deque<bool> answers = {}) {
        PrintDialogState dialog{mode, false};
        ScriptedRunner runner;
        runner.answers = std::move(answers);
        const AccountPairOutcome outcome = printAccountPair(values, buffer, draw, dialog, runner);
        return std::tuple(outcome, runner.jobs, dialog.modeInForce, dialog.printedWithDialog);
    };

    EXPECT_EQ(print(printDialogEveryTime),
              std::tuple(AccountPairOutcome::Printed, Lines{accountJob, copyJob},
                         printDialogEveryTime, true));
    EXPECT_EQ(print(printDialogFirstPrintOnly, {false}),
              std::tuple(AccountPairOutcome::AccountNotPrinted, Lines{accountJob}, printDialogNever,
                         true));
    EXPECT_EQ(print(printDialogEveryTime, {true, false}),
              std::tuple(AccountPairOutcome::CopyNotPrinted, Lines{accountJob, copyJob},
                         printDialogEveryTime, true));

    // Without the account, the copy is the command's first job.
    account.omitTopSheet.set(1);
    EXPECT_EQ(print(printDialogFirstPrintOnly),
              std::tuple(AccountPairOutcome::Printed, Lines{"Account Copy +dialog (Cats: )"},
                         printDialogNever, true));
    EXPECT_EQ(std::get<1>(print(printDialogNever)), Lines{copyJob});
    account.omitTopSheet.set(0); // neither page is AccountCommandsTest's
    account.omitCopy.set(1);
    EXPECT_EQ(std::get<1>(print(printDialogEveryTime)), Lines{accountJob});
}

} // namespace
} // namespace purrlodge
