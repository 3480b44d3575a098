#include "print/AccountPages.h"

#include <array>
#include <string>
#include <string_view>

#include "print/EstablishmentAddress.h"
#include "print/PrintBuffer.h"
#include "print/PrintDialogRule.h"
#include "print/PrintJobRunner.h"
#include "print/PrintLineFormat.h"
#include "store/CatSlots.h"
#include "store/Dates.h"
#include "store/TextHelpers.h"

namespace purrlodge {

namespace {

constexpr unsigned char euroSign = 0x80;

constexpr std::string_view headingGap = "0b, 20, 150, 2, n, 000, C";
constexpr std::string_view catLineFormat = "2b, 5, 0, 1, n, 000, A";
constexpr std::string_view moneyFormat = "3, 6, 0, 1, n, 000, A";
constexpr std::string_view boardFormat = "4, 4, 0, 1, n, 000, A";
constexpr std::string_view afterBoardFormat = "3, 4, 0, 1, n, 000, A";

constexpr std::string_view blank = " ";

// An amount after its currency sign, two decimals ("%c%01.2f" and "%c%.02f"
// print alike).
std::string money(unsigned char sign, double amount)
{
    return formatted("%c%.2f", sign, amount);
}

std::string money(unsigned char sign, float amount)
{
    return money(sign, static_cast<double>(amount));
}

std::string longDateOf(const FixedText<25>& date, const Clock& clock)
{
    return longDate(dateToNumber(date.str()), clock);
}

std::string bracketed(const std::string& text)
{
    return "(" + text + ")";
}

std::string personLine(const ClientRecord& client)
{
    return client.style.str() + ' ' + client.firstName.str() + ' ' + client.surname.str();
}

std::string_view dayWord(bool perDay, bool plural)
{
    if (perDay)
        return plural ? "days" : "day";
    return plural ? "nights" : "night";
}

// The boarded cats' names, each followed by ", ": the first three on one
// line and the rest on a second. The line in hand is always added, so three
// or more cats give two lines and the second may be empty.
void addCatLines(PrintBuffer& buffer, const AccountPageValues& values)
{
    std::string line;
    int named = 0;
    for (int slot = 0; slot < catSlotCount; ++slot) {
        const bool leftOut = values.account.catNotBoarded[slot].get() != 0;
        if (!isCatSlotUsed(values.client, slot) || leftOut)
            continue;
        line += values.client.catName[slot].str() + ", ";
        if (++named == 3) {
            buffer.add(line, catLineFormat);
            line.clear();
        }
    }
    buffer.add(line, catLineFormat);
}

// "Board (Old Rate) from %s to %s (%d days @ %.02f)": the stored dates, and
// "days" whatever the charging unit.
std::string rateLine(std::string_view which, const FixedText<25>& from, const FixedText<25>& to,
                     int days, float rate)
{
    return "Board (" + std::string(which) + " Rate) from " + from.str() + " to " + to.str() +
           formatted(" (%d days @ %.02f)", days, static_cast<double>(rate));
}

std::string oldRateLine(const AccountRecord& account)
{
    return rateLine("Old", account.arrivalDate, account.oldRateEndDate, account.daysAtOldRate.get(),
                    account.oldRate.get());
}

std::string newRateLine(const AccountRecord& account)
{
    return rateLine("New", account.newRateStartDate, account.departureDate,
                    account.daysAtNewRate.get(), account.rateUsed.get());
}

// "@ %c%.02f per %s" with the current rate.
std::string perUnitRate(const AccountPageValues& values)
{
    return "@ " + money(values.currencySign, values.account.rateUsed.get()) + " per " +
           std::string(dayWord(values.perDay, false));
}

void addAccountBoardLines(PrintBuffer& buffer, const AccountPageValues& values)
{
    const AccountRecord& account = values.account;
    if (account.daysAtOldRate.get() < 1) {
        buffer.add("Boarding from: " + longDateOf(account.arrivalDate, values.clock),
                   "2, 4, 0, 1, n, 000, A");
        buffer.add("                     to: " + longDateOf(account.departureDate, values.clock),
                   "2, 4, 0, 1, n, 000, A");
        buffer.add(blank, "1, 4, 0, 1, n, 000, A");
        // "%d %s " and the rate, joined by "%s %s": two blanks between them.
        const std::string count = formatted("%d ", account.daysCharged.get()) +
                                  std::string(dayWord(values.perDay, true)) + ' ';
        buffer.add(count + ' ' + perUnitRate(values), moneyFormat);
        return;
    }
    buffer.add(oldRateLine(account), boardFormat);
    if (account.daysAtNewRate.get() > 0)
        buffer.add(newRateLine(account), boardFormat);
    buffer.add(blank, afterBoardFormat);
    buffer.add("Total Boarding: " + money(values.currencySign, account.grossBoard.get()),
               boardFormat);
}

void addCopyBoardLines(PrintBuffer& buffer, const AccountPageValues& values)
{
    const AccountRecord& account = values.account;
    if (account.daysAtOldRate.get() > 0) {
        buffer.add(oldRateLine(account), boardFormat);
        buffer.add("", boardFormat);
        if (account.daysAtNewRate.get() > 0)
            buffer.add(newRateLine(account), boardFormat);
        buffer.add(blank, afterBoardFormat);
        return;
    }
    buffer.add("Boarding from " + account.arrivalDate.str() + " to " + account.departureDate.str() +
                   formatted(" (%d ", account.daysCharged.get()) +
                   std::string(dayWord(values.perDay, true)) + ")",
               boardFormat);
    buffer.add(perUnitRate(values), "4, 6, 0, 1, n, 000, A");
}

std::string discountLine(std::string_view allow, const AccountPageValues& values)
{
    const AccountRecord& account = values.account;
    return std::string(allow) + ' ' + account.discountDescription.str() +
           formatted(" Discount (%01.2f%%) = ",
                     static_cast<double>(account.discountPercentage.get())) +
           money(values.currencySign, account.discountAmount.get());
}

// Extras, the standard extra and the rebate, each with its own condition; the
// copy sets the rebate apart by a blank line.
void addExtrasLines(PrintBuffer& buffer, const AccountPageValues& values, bool blankBeforeRebate)
{
    const AccountRecord& account = values.account;
    const unsigned char sign = values.currencySign;
    if (account.extrasAmount.get() > 0.0f)
        buffer.add("Extras: " + account.extrasDescription.str() + "  " +
                       money(sign, account.extrasAmount.get()),
                   moneyFormat);
    if (account.standardExtraCharged.get() != 0)
        buffer.add(values.standardExtraName + "  " + money(sign, values.standardExtraAmount),
                   moneyFormat);
    if (blankBeforeRebate)
        buffer.add(blank, moneyFormat);
    if (account.creditAmount.get() > 0.0f)
        buffer.add("Rebate: " + account.creditDescription.str() + "  " +
                       money(sign, account.creditAmount.get()),
                   moneyFormat);
}

// "Balance ..." when nothing but board was charged, "Final Balance ..."
// otherwise; in pounds with euros shown, the euro amount follows.
std::string balanceLine(const AccountPageValues& values, std::string_view suffix)
{
    const AccountRecord& account = values.account;
    const bool boardOnly =
        account.discountPercentage.get() <= 0.0f && account.creditAmount.get() <= 0.0f &&
        account.extrasAmount.get() <= 0.0f && account.standardExtraCharged.get() == 0;
    const float balance = account.finalBalance.get();
    std::string line = (boardOnly ? "Balance" : "Final Balance") + std::string(suffix) + ": " +
                       money(values.currencySign, balance);
    if (values.inSterling && values.exchangeRate.showEuros.get() != 0) {
        const float pencePerEuro = values.exchangeRate.pencePerEuro.get();
        // No rate set: 0 euros rather than an infinity, as the fee stores it.
        const long double euros =
            pencePerEuro == 0.0f ? 0.0L : static_cast<long double>(balance) * 100 / pencePerEuro;
        line += "     (" + money(euroSign, static_cast<double>(euros)) + ")";
    }
    return line;
}

bool showsNameOnAccount(const EstablishmentRecord& establishment)
{
    return !establishment.name.isEmpty() && contains(establishment.displayFlags.str(), "A");
}

void addEstablishmentHeading(PrintBuffer& buffer, const AccountPageValues& values, RandomDraw& draw)
{
    const EstablishmentRecord& establishment = values.establishment;
    const std::string manager = establishment.manager.str();
    if (showsNameOnAccount(establishment)) {
        constexpr std::string_view nameFormat = "0b, 8, 50, 2, u, 000, C";
        buffer.add(establishment.name.str(),
                   values.accountInColour ? recolourFormat(nameFormat, values.nameColourIndex, draw)
                                          : std::string(nameFormat));
        if (!establishment.namesOnAccounts.isEmpty() && values.namesLineOn)
            buffer.add(bracketed(establishment.namesOnAccounts.str()),
                       values.accountInColour ? "5b, 8, 0, 3, n, 009, C"
                                              : "5b, 8, 0, 3, n, 000, C");
        if (!manager.empty()) {
            const bool startsWithBlank =
                manager[0] == ' ' || (manager.size() > 1 && manager[1] == ' ');
            buffer.add(startsWithBlank ? std::string(blank) : bracketed(manager),
                       "5b, 8, 0, 3, n, 000, C");
        }
    } else if (!manager.empty()) {
        buffer.add(bracketed(manager), "5b, 8, 0, 3, n, 000, C");
    }

    addEstablishmentAddress(buffer, establishment);
}

void addClientAddress(PrintBuffer& buffer, const ClientRecord& client, std::string_view format)
{
    for (const auto& line : client.address)
        if (!line.isEmpty())
            buffer.add(line.str(), format);
}

} // namespace

void fillClientAccount(PrintBuffer& buffer, const AccountPageValues& values, RandomDraw& draw)
{
    const AccountRecord& account = values.account;
    const EstablishmentRecord& establishment = values.establishment;
    const unsigned char sign = values.currencySign;
    const bool discounted = account.discountPercentage.get() > 0.0f;

    buffer.clear();
    buffer.add(blank, headingGap);
    buffer.add(blank, headingGap);
    addEstablishmentHeading(buffer, values, draw);

    buffer.add(formatted("No.%d", account.receiptNumber.get()), "2b, 25, 0, 3, n, 000, A");
    buffer.add(blank, "1, 12, 0, 3, n, 000, A");
    buffer.add(longDateOf(account.departureDate, values.clock), "3b, 15, 0, 3, n, 000, A");
    buffer.add(personLine(values.client), "2, 3, 0, 1, n, 000, A");
    addClientAddress(buffer, values.client, "4, 4, 0, 1, n, 000, A");
    buffer.add(blank, "4, 4, 0, 1, n, 000, A");
    buffer.add(blank, "1, 4, 0, 1, n, 000, A");
    buffer.add("Boarding: ", "2, 4, 0, 1, n, 000, A");
    buffer.add(blank, "3, 4, 0, 1, n, 000, A");
    addCatLines(buffer, values);
    buffer.add(blank, "1, 4, 0, 1, n, 000, A");
    addAccountBoardLines(buffer, values);
    buffer.add(blank, "1, 4, 0, 1, n, 000, A");

    buffer.add("Board total " + money(sign, account.grossBoard.get()), moneyFormat);
    if (discounted) {
        buffer.add(discountLine("Allow", values), moneyFormat);
        buffer.add("Net Boarding fees " + money(sign, account.netBoard.get()), moneyFormat);
    }
    addExtrasLines(buffer, values, false);
    buffer.add(blank, moneyFormat);
    buffer.add(balanceLine(values, " due"), "3b, 12, 0, 1, u, 000, A");
    buffer.add(blank, "0b, 15, 0, 1, n, 000, A");
    buffer.add(values.accountNote, "3, 0, 0, 1, n, 900, A");
    buffer.add(blank, moneyFormat);
    if (!establishment.chequesPayableTo.isEmpty())
        buffer.add("Please make cheques payable to: '" + establishment.chequesPayableTo.str() + "'",
                   contains(establishment.chequesColour.str(), "**RED**")
                       ? "3, 6, 0, 1, n, 900, A"
                       : "3, 6, 0, 1, n, 000, A");
}

void fillAccountCopy(PrintBuffer& buffer, const AccountPageValues& values)
{
    const AccountRecord& account = values.account;
    const unsigned char sign = values.currencySign;
    const bool colour = values.copyInColour;

    buffer.clear();
    buffer.add(blank, headingGap);
    if (!values.establishment.name.isEmpty())
        buffer.add(values.establishment.name.str(),
                   colour ? "2b, 20, 50, 2, u, 009, C" : "2b, 20, 50, 2, u, 000, C");
    buffer.add("", "3b, 25, 0, 3, n, 000, A");
    buffer.add(formatted("No.%d", account.receiptNumber.get()),
               colour ? "3b, 25, 0, 3, n, 900, A" : "3b, 25, 0, 3, n, 000, A");
    buffer.add(blank, "3b, 25, 0, 3, n, 000, A");
    buffer.add(longDateOf(account.departureDate, values.clock), "3b, 15, 0, 3, n, 000, A");
    buffer.add(blank, "3, 12, 0, 3, n, 000, A");
    buffer.add(personLine(values.client), "3, 3, 0, 1, n, 000, A");
    addClientAddress(buffer, values.client, "3, 4, 0, 1, n, 000, A");
    buffer.add(blank, "4, 4, 0, 1, n, 000, A");
    buffer.add("Tel: " + values.client.telephone.str(), "5, 4, 0, 3, n, 000, A");
    buffer.add(blank, "1, 4, 0, 1, n, 000, A");
    buffer.add("Cats: ", "3b, 4, 0, 1, n, 000, A");
    buffer.add(blank, "4, 4, 0, 1, n, 000, A");
    addCatLines(buffer, values);
    buffer.add(blank, afterBoardFormat);
    addCopyBoardLines(buffer, values);
    buffer.add(blank, afterBoardFormat);

    buffer.add("Board total " + money(sign, account.grossBoard.get()), moneyFormat);
    if (account.discountPercentage.get() > 0.0f) {
        buffer.add(discountLine("Allowed", values), moneyFormat);
        buffer.add(blank, "4, 6, 0, 1, n, 000, A");
        // The copy derives its net fees; the account prints the stored ones.
        const long double net =
            static_cast<long double>(account.grossBoard.get()) - account.discountAmount.get();
        buffer.add("Net Boarding fees " + money(sign, static_cast<double>(net)), moneyFormat);
    }
    buffer.add(blank, moneyFormat);
    addExtrasLines(buffer, values, true);
    buffer.add(blank, moneyFormat);
    buffer.add(balanceLine(values, ""), "3, 15, 0, 1, u, 000, A");
    buffer.add(blank, "0b, 15, 0, 1, n, 000, A");
    buffer.add(values.accountNote, "3, 1, 0, 1, n, 000, A");
    buffer.add("", "0b, 15, 0, 1, n, 000, A");
    buffer.add(formatted("Exchange rate %c1 = %.1fp", euroSign,
                         static_cast<double>(values.exchangeRate.pencePerEuro.get())),
               "3, 4, 0, 1, n, 000, A");
}

AccountPairOutcome printAccountPair(const AccountPageValues& values, PrintBuffer& buffer,
                                    RandomDraw& draw, PrintDialogState& dialog,
                                    PrintJobRunner& runner)
{
    CommandJobs jobs(runner, dialog);
    if (values.account.omitTopSheet.get() == 0) {
        fillClientAccount(buffer, values, draw);
        if (!jobs.run("Client's Account", buffer))
            return AccountPairOutcome::AccountNotPrinted;
    }
    if (values.account.omitCopy.get() == 0) {
        fillAccountCopy(buffer, values);
        if (!jobs.run("Account Copy", buffer))
            return AccountPairOutcome::CopyNotPrinted;
    }
    return AccountPairOutcome::Printed;
}

} // namespace purrlodge
