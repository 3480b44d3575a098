#include <gtest/gtest.h>

#include "accounts/AccountFiling.h"
#include "accounts/AccountListings.h"
#include "accounts/AccountPreparation.h"
#include "support/FakePorts.h"

namespace purrlodge {
namespace {

using Lines = std::vector<std::string>;

AccountRecord account(int number, const char* arrival = "01/03/25",
                      const char* departure = "05/03/25")
{
    AccountRecord record{};
    record.receiptNumber.set(number);
    record.arrivalDate.set(arrival);
    record.departureDate.set(departure);
    return record;
}

std::vector<int> numbers(const AccountBook& book)
{
    std::vector<int> result;
    for (const AccountRecord& record : book.accounts)
        result.push_back(record.receiptNumber.get());
    return result;
}

AccountBook bookOf(int first, int count)
{
    AccountBook book{};
    for (int n = 0; n < count; ++n)
        placeAccount(book, account(first + n), false);
    return book;
}

TEST(AccountBookTest, NewAccountsPushTheOldestOutAndASubstituteReplacesTheNewest)
{
    AccountBook book = bookOf(1, 10);
    EXPECT_EQ(numbers(book), (std::vector<int>{1, 2, 3, 4, 5, 6, 7, 8, 9, 10}));
    placeAccount(book, account(11), false);
    EXPECT_EQ(numbers(book), (std::vector<int>{2, 3, 4, 5, 6, 7, 8, 9, 10, 11}));
    placeAccount(book, account(11, "02/03/25"), true);
    EXPECT_EQ(numbers(book), (std::vector<int>{2, 3, 4, 5, 6, 7, 8, 9, 10, 11}));
    EXPECT_EQ(book.accounts[9].arrivalDate.str(), "02/03/25");
}

TEST(AccountBookTest, DeletingMovesTheOlderAccountsUpAndNeverMatchesTheOldestSlot)
{
    for (int slot = 9; slot >= 1; --slot) {
        AccountBook book = bookOf(1, 10);
        ASSERT_TRUE(removeAccount(book, slot + 1));
        std::vector<int> expected{0};
        for (int n = 1; n <= 10; ++n)
            if (n != slot + 1)
                expected.push_back(n);
        EXPECT_EQ(numbers(book), expected) << "slot " << slot;
    }
    AccountBook book = bookOf(1, 10);
    EXPECT_FALSE(removeAccount(book, 1));
    EXPECT_FALSE(removeAccount(book, 0)) << "empty slots are not accounts";
    EXPECT_EQ(numbers(book), numbers(bookOf(1, 10)));
}

TEST(AccountBookTest, AccountsLookSimilarWhenEitherDateIsLessThanFourDaysAway)
{
    const AccountRecord filed = account(1, "10/03/25", "20/03/25");
    EXPECT_TRUE(accountsLookSimilar(account(2, "13/03/25", "30/03/25"), filed));
    EXPECT_TRUE(accountsLookSimilar(account(2, "07/03/25", "30/03/25"), filed));
    EXPECT_FALSE(accountsLookSimilar(account(2, "14/03/25", "30/03/25"), filed));
    EXPECT_FALSE(accountsLookSimilar(account(2, "06/03/25", "16/03/25"), filed));
    EXPECT_TRUE(accountsLookSimilar(account(2, "01/01/25", "17/03/25"), filed));
}

TEST(AccountBookTest, TheClientsListShowsEachAccountAndTheTotal)
{
    testing::FakeClock clock;
    AccountBook book{};
    EXPECT_EQ(clientAccountsList(&book, clock).lines,
              (Lines{"", "There are no accounts for this Client"}));
    EXPECT_EQ(clientAccountsList(nullptr, clock).lines,
              Lines{"There are no accounts for this client"});

    clock.setUtc(2025, 3, 6, 9, 5);
    AccountRecord first = account(1042);
    first.filedTime.set(static_cast<std::int32_t>(clock.now()));
    first.finalBalance.set(90.25f);
    placeAccount(book, first, false);
    AccountRecord second = account(1043, "10/04/25", "12/04/25");
    second.finalBalance.set(20.0f);
    clock.setUtc(2025, 4, 12, 17, 45);
    second.filedTime.set(static_cast<std::int32_t>(clock.now()));
    placeAccount(book, second, false);
    const ClientAccountsList list = clientAccountsList(&book, clock);
    EXPECT_EQ(list.title, "Client's Most Recent Accounts (Max 10)");
    EXPECT_EQ(list.lines, (Lines{"   Rec No. 1042 - in: 01/03/25 out: 05/03/25      (Filed "
                                 "06/03/25 at 9:5)",
                                 "   Rec No. 1043 - in: 10/04/25 out: 12/04/25      (Filed "
                                 "12/04/25 at 17:45)",
                                 "", "Total \xA3 110.25,"}));
    EXPECT_EQ(list.receiptOfLine, (std::vector<int>{1042, 1043, 0, 0}));
}

TEST(AccountBookTest, TheSummaryShowsTheExtraAsNowSetAndMarksAbbreviatedAccounts)
{
    ClientRecord client{};
    client.style.set("Mrs");
    client.firstName.set("Ann");
    client.surname.set("Smith");
    RatesRecord rates{};
    rates.standardExtraName.set("Grooming");
    rates.standardExtraCharge.set(7.5f);
    AccountRecord filed = account(1042);
    filed.currencySign = '$';
    filed.daysCharged.set(4);
    filed.catNames[0].set("Felix");
    filed.finalBalance.set(99.5f);

    const Lines plain = accountSummaryLines(client, filed, rates);
    EXPECT_EQ(plain.size(), 12u);
    EXPECT_EQ(plain[1], "Arrived: 01/03/25\tLeft:  05/03/25  (4 nights)");
    EXPECT_EQ(plain[3], "    Felix");
    EXPECT_EQ(plain[11], "Final Balance:  $ 99.50");

    filed.standardExtraCharged.set(1);
    filed.boardAtOldRate.set(9999.99f);
    rates.perDay.set(1);
    rates.currency.set(static_cast<std::uint32_t>(Currency::Sterling));
    filed.pencePerEuroWhole.set(80);
    const Lines full = accountSummaryLines(client, filed, rates);
    EXPECT_EQ(full[1], "Arrived: 01/03/25\tLeft:  05/03/25  (4 days)");
    EXPECT_EQ(full[8], "Grooming: \t$ 7.50");
    EXPECT_EQ(full[14], "\tExchange rate used: \xA3"
                        "1 = 80p");
    EXPECT_EQ(full.back(), "            Abbreviated Data from 16-bit file");
}

TEST(AccountBookTest, NewDatesAreShortenedCheckedAndCountedAgainEachTime)
{
    RatesRecord rates{};
    rates.presentRate[0].set(10.0f);
    rates.perDay.set(1);
    rates.accountNote.set("Thank you");
    ExchangeRateRecord exchange{};
    testing::FakeClock clock;
    DateEntryState dates;
    AccountRecord prepared{};
    AccountPreparation preparation(rates, exchange, clock, 2025, dates, prepared);

    ClientRecord client{};
    client.catName[0].set("Felix");
    client.arrivalDate.set("01/02/25");
    client.departureDate.set("02/02/25");
    AccountPreparationForm form =
        openAccountPreparation(client, StayRecord{}, rates, 7, false, true);
    EXPECT_EQ(form.arrival + form.departure, "01/02/2502/02/25") << "the client's stay dates";
    EXPECT_TRUE(form.cats[0].ticked) << "a stay with no cats chosen takes them all";
    EXPECT_EQ(form.additionalNotes, "Thank you");
    client.departureDate.clear();
    EXPECT_EQ(
        preparation.recompute(openAccountPreparation(client, StayRecord{}, rates, 7, false, true))
            .refusal->title,
        "Missing Data")
        << "no charge is worked out from a missing date";

    EXPECT_EQ(preparation.alterDates(form, "1/3", "5/3/25").message,
              "You seem to have entered wrong dates\nPlease check and try again");
    const AccountDatesCheck late = preparation.alterDates(form, "01/03/25", "31/04/25");
    EXPECT_EQ(late.message + "|" + late.dateLabel,
              "The date does not exist in that month !|Departure/End date");
    EXPECT_EQ(form.arrival, "01/02/25") << "a refused change leaves the dates";

    ASSERT_EQ(preparation.alterDates(form, "1/3/2025", "5/3/2025").verdict,
              AccountDatesVerdict::GoOn);
    EXPECT_EQ(form.arrival + "-" + form.departure, "01/03/25-05/03/25");
    const ChargeTexts once = preparation.recompute(form);
    EXPECT_EQ(once.count + " " + once.basicBoardCharge, "5 days Basic Board Charge \x80"
                                                        "50.00");
    EXPECT_EQ(preparation.recompute(form).basicBoardCharge, once.basicBoardCharge);
    EXPECT_EQ(rates.accountNote.str(), "Thank you") << "only OK takes the additional notes";

    form.cats[0].ticked = false;
    EXPECT_EQ(preparation.recompute(form).refusal->title, "Names no Ticked");
}

} // namespace
} // namespace purrlodge
