#include "housekeeping/PeriodReports.h"

#include <cmath>
#include <gtest/gtest.h>
#include <limits>
#include <map>

#include "accounts/AccountFiling.h"
#include "housekeeping/ReportPeriod.h"
#include "store/ClientFiles.h"
#include "store/DataFolder.h"
#include "store/Dates.h"
#include "store/IndexOperations.h"
#include "support/DataSetGenerator.h"
#include "support/FakePorts.h"
#include "support/TempFolder.h"

namespace purrlodge {
namespace {

struct Stay {
    const char* arrival;
    int days = 0;
    int cats = 0;
    float balance = 0;
};

class PeriodReportsTest : public ::testing::Test {
protected:
    // A client whose book holds the stays, numbered from `number`.
    void addClient(const std::string& code, const std::string& surname,
                   const std::vector<Stay>& stays, int number = 1)
    {
        ASSERT_TRUE(appendEntry(index, surname, code));
        ClientRecord client{};
        client.style.set("Mrs");
        client.surname.set(surname);
        ASSERT_TRUE(writeClientRecord(folder, code, client));
        AccountBook book{};
        for (const Stay& stay : stays) {
            AccountRecord account{};
            account.receiptNumber.set(number++);
            account.arrivalDate.set(stay.arrival);
            account.daysCharged.set(stay.days);
            account.catsBoarded.set(stay.cats);
            account.finalBalance.set(stay.balance);
            account.grossBoard.set(stay.balance);
            placeAccount(book, account, false);
        }
        ASSERT_TRUE(writeAccountBook(folder, code, book));
    }

    PeriodFigures gather(const char* from, const char* to, bool perNight = false)
    {
        return gatherPeriodFigures(folder, index, dateToNumber(from), dateToNumber(to), perNight);
    }

    testing::TempFolder temp;
    testing::FakeUi ui;
    DataFolder folder{temp.path(), ui};
    ClientIndex index{};
};

TEST_F(PeriodReportsTest, CountsBothEndsOfThePeriodAndMonthsAcrossTheYearEnd)
{
    addClient("EDGE0001", "Edge",
              {{"14/12/24", 9, 1, 1.0f},
               {"15/12/24", 3, 2, 10.0f},
               {"31/12/24", 4, 1, 20.0f},
               {"01/01/25", 5, 3, 30.0f},
               {"14/01/25", 2, 1, 40.0f},
               {"15/01/25", 9, 1, 2.0f}});
    const PeriodFigures figures = gather("15/12/24", "14/01/25");
    // Gross board is set equal to the balance; nothing else is charged.
    ASSERT_EQ(figures.months.size(), 2u);
    const MonthFigures& december = figures.months[0];
    const MonthFigures& january = figures.months[1];
    EXPECT_EQ(december, (MonthFigures{2024, 12, 17, 2, 3000, 0, 0, 0, 3000, 3 * 2 + 4 * 1}));
    EXPECT_EQ(january, (MonthFigures{2025, 1, 14, 2, 7000, 0, 0, 0, 7000, 5 * 3 + 2 * 1}));
    EXPECT_EQ(monthLabel(december), "Dec 2024");
    EXPECT_EQ(monthLabel(january), "Jan 2025");
    EXPECT_EQ(figures.totals, (MonthFigures{0, 0, 31, 4, 10000, 0, 0, 0, 10000, 27}));
    EXPECT_EQ(occupancyHundredths(december), 59) << "10 cat-days over 17 days";
    EXPECT_EQ(occupancyHundredths(january), 121) << "17 cat-days over 14 days";

    const PeriodFigures oneDay = gather("31/12/24", "31/12/24");
    EXPECT_EQ(oneDay.totals.accounts, 1);
    EXPECT_EQ(oneDay.months.size(), 1u);
    const PeriodFigures leapFebruary = gather("01/02/24", "31/03/24");
    EXPECT_EQ(leapFebruary.months[0].daysInPeriod, 29);
    EXPECT_EQ(leapFebruary.months[1].daysInPeriod, 31);
}

TEST_F(PeriodReportsTest, SkipsUnsafeCodesUnreadableBooksAndEmptySlotsAndClampsDamage)
{
    addClient("GOOD0001", "Good",
              {{"10/03/25", 10000, 40, 5.0f}, {"11/03/25", 9999, 1, 0}, {"12/03/25", -5, 2, 0}});
    ASSERT_TRUE(appendEntry(index, "Sneaky", "..\\EVIL"));
    ASSERT_TRUE(appendEntry(index, "Bookless", "NOBOOK01"));
    const PeriodFigures figures = gather("01/03/25", "31/03/25");
    EXPECT_EQ(figures.totals.accounts, 3) << "the seven empty slots are not accounts";
    EXPECT_EQ(figures.totals.catDays, 9999 * 6 + 9999);
    ASSERT_EQ(figures.clients.size(), 1u);
    EXPECT_EQ(figures.clients[0].code, "GOOD0001");
    EXPECT_EQ(figures.clients[0].name, "Mrs Good");
}

TEST(PeriodMoney, RoundsEachAmountToHundredthsSoSumsAreExact)
{
    EXPECT_EQ(hundredthsOf(0.1f) * 3, 30);
    EXPECT_EQ(hundredthsOf(12.345f), 1235) << "12.345f is held just above";
    EXPECT_EQ(hundredthsOf(-3.05f), -305);
    EXPECT_EQ(hundredthsOf(std::numeric_limits<float>::quiet_NaN()), 0);
    EXPECT_EQ(hundredthsOf(2e8f), 0);
    EXPECT_EQ(hundredthsOf(1e8f), 10000000000);
    EXPECT_EQ(moneyText(123450), "1234.50");
    EXPECT_EQ(moneyText(-305), "-3.05");
    EXPECT_EQ(moneyText(-5), "-0.05");
}

TEST(PeriodRanking, OrdersByTheMeasureWithTiesInIndexOrderAndStopsAtTheCount)
{
    const std::vector<ClientUsage> clients{{"A", "Abel", 1, 5000, 10},
                                           {"B", "Burr", 2, 9000, 10},
                                           {"C", "Cole", 1, 9000, 30},
                                           {"D", "Dunn", 1, 100, 20}};
    const auto codes = [](const std::vector<ClientUsage>& ranked) {
        std::string order;
        for (const ClientUsage& client : ranked)
            order += client.code;
        return order;
    };
    EXPECT_EQ(codes(rankedByCash(clients, 30)), "BCAD");
    EXPECT_EQ(codes(rankedByDays(clients, 30)), "CDAB");
    EXPECT_EQ(codes(rankedByCash(clients, 2)), "BC");
}

TEST_F(PeriodReportsTest, AddsUpAFullDataSetAsTheBooksHoldIt)
{
    index = testing::generateDataSet(folder, maxClients, 11);
    const PeriodFigures figures = gather("01/01/24", "31/12/24");
    ASSERT_EQ(figures.months.size(), 12u);

    // Sums made apart from the report: each book read again, each account's
    // month taken from its date text, amounts rounded to pence.
    std::map<int, MonthFigures> expected;
    std::int64_t cash = 0;
    for (int entry = 1; entry <= index.usedCount(); ++entry) {
        AccountBook book;
        ASSERT_TRUE(readAccountBook(folder, index.entries[entry].code.str(), book));
        for (const AccountRecord& account : book.accounts) {
            MonthFigures& month = expected[readDateParts(account.arrivalDate.str()).month];
            ++month.accounts;
            month.board += std::llround(account.grossBoard.get() * 100.0);
            month.discounts += std::llround(account.discountAmount.get() * 100.0);
            month.extras += std::llround(account.extrasAmount.get() * 100.0);
            month.credits += std::llround(account.creditAmount.get() * 100.0);
            month.balances += std::llround(account.finalBalance.get() * 100.0);
            month.catDays += account.daysCharged.get() * account.catsBoarded.get();
            cash += std::llround(account.finalBalance.get() * 100.0);
        }
    }
    for (const MonthFigures& month : figures.months) {
        MonthFigures want = expected[month.month];
        want.year = 2024;
        want.month = month.month;
        want.daysInPeriod = monthLength(month.month, true);
        EXPECT_EQ(month, want) << month.month;
    }
    EXPECT_EQ(figures.totals.accounts, maxClients * accountBookSlots);
    EXPECT_EQ(figures.totals.balances, cash);
    EXPECT_GT(figures.totals.discounts, 0);
    EXPECT_EQ(figures.clients.size(), std::size_t{maxClients});

    // The generated accounts begin on 2 January 2024 and come a fortnight apart.
    EXPECT_EQ(gather("03/01/24", "15/01/24").totals.accounts, 0);
    EXPECT_EQ(gather("02/01/24", "02/01/24").totals.accounts, maxClients);
    EXPECT_EQ(gather("16/01/24", "16/01/24").totals.accounts, maxClients);
}

TEST(ReportPeriodCheck, TakesGoodDatesAndExplainsBadOnes)
{
    ReportPeriod period{"1/2/2025", "28/2/25"};
    EXPECT_FALSE(reportPeriodError(period, 2025));
    EXPECT_EQ(period, (ReportPeriod{"01/02/25", "28/02/25"}));

    const auto verdict = [](ReportPeriod typed) {
        const auto error = reportPeriodError(typed, 2025);
        return error ? error->text : std::string("accepted");
    };
    EXPECT_EQ(verdict({"05/05/25", "05/05/25"}), "accepted");
    EXPECT_NE(verdict({"05/05/25", "04/05/25"}).find("ends before it starts"), std::string::npos);
    EXPECT_EQ(verdict({"30/02/25", "01/03/25"}),
              "The date does not exist in that month !\n(the From date)");
    EXPECT_EQ(verdict({"01/03/25", "0103"}), "Please type the To date as dd/mm/yy.");
}

} // namespace
} // namespace purrlodge
