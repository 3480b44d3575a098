#include "accounts/AccountListings.h"

#include "accounts/AccountFiling.h"
#include "accounts/FeeCalculation.h"
#include "ports/Clock.h"
#include "store/ClientCode.h"
#include "store/ClientFiles.h"
#include "store/DataFolder.h"
#include "store/TextHelpers.h"

namespace purrlodge {

namespace {

constexpr char poundSign = '\xA3';

double shown(const Float32LE& amount)
{
    return static_cast<double>(amount.get());
}

std::string clientNameLine(const ClientRecord& client)
{
    return formatted("%s %s %s", client.style.str().c_str(), client.firstName.str().c_str(),
                     client.surname.str().c_str());
}

// The names of the cats boarded, in box order.
std::vector<std::string> catsBoarded(const AccountRecord& account)
{
    std::vector<std::string> names;
    for (const auto& name : account.catNames)
        if (!name.str().empty())
            names.push_back(name.str());
    return names;
}

std::string accountListLine(const AccountRecord& account, const Clock& clock)
{
    const CivilTime filed = clock.toLocal(account.filedTime.get());
    return formatted("   Rec No. %d - in: %s out: %s      (Filed %02d/%02d/%02d at %d:%d)",
                     account.receiptNumber.get(), account.arrivalDate.str().c_str(),
                     account.departureDate.str().c_str(), filed.day, filed.month, filed.year - 2000,
                     filed.hour, filed.minute);
}

void addNumberedAccount(std::vector<std::string>& lines, const ClientRecord& client,
                        const AccountRecord& account)
{
    lines.push_back(clientNameLine(client));
    lines.push_back(formatted("   Arrival: %s          Departure: %s",
                              account.arrivalDate.str().c_str(),
                              account.departureDate.str().c_str()));
    lines.push_back(
        formatted("   Account Total: %c%.2f", account.currencySign, shown(account.finalBalance)));
    lines.emplace_back("   cats:");
    for (const std::string& cat : catsBoarded(account))
        lines.push_back("      " + cat);
    lines.emplace_back();
}

} // namespace

ClientAccountsList clientAccountsList(const AccountBook* book, const Clock& clock)
{
    ClientAccountsList list;
    if (book == nullptr) {
        list.lines = {"There are no accounts for this client"};
        list.receiptOfLine = {0};
        return list;
    }
    list.title = "Client's Most Recent Accounts (Max 10)";
    float total = 0.0f;
    for (const AccountRecord& account : book->accounts) {
        if (account.receiptNumber.get() == 0)
            continue;
        list.lines.push_back(accountListLine(account, clock));
        list.receiptOfLine.push_back(account.receiptNumber.get());
        total += account.finalBalance.get();
    }
    list.lines.emplace_back();
    list.lines.push_back(total == 0.0f
                             ? std::string("There are no accounts for this Client")
                             : formatted("Total %c %.02f,", poundSign, static_cast<double>(total)));
    list.receiptOfLine.resize(list.lines.size(), 0);
    return list;
}

std::optional<int> slotOfAccount(const AccountBook& book, int receiptNumber)
{
    for (int slot = accountBookSlots - 1; slot >= 0; --slot)
        if (receiptNumber != 0 && book.accounts[slot].receiptNumber.get() == receiptNumber)
            return slot;
    return std::nullopt;
}

std::vector<std::string> accountSummaryLines(const ClientRecord& client,
                                             const AccountRecord& account, const RatesRecord& rates)
{
    const unsigned char sign = account.currencySign;
    std::vector<std::string> lines;
    lines.push_back(formatted("%s\tReceipt No. %d", clientNameLine(client).c_str(),
                              account.receiptNumber.get()));
    lines.push_back(formatted("Arrived: %s\tLeft:  %s  (%d %s)", account.arrivalDate.str().c_str(),
                              account.departureDate.str().c_str(), account.daysCharged.get(),
                              chargesPerDay(rates) ? "days" : "nights"));
    lines.emplace_back("Cats:");
    for (const std::string& cat : catsBoarded(account))
        lines.push_back("    " + cat);
    lines.push_back(formatted("Gross Board:  %c %.02f", sign, shown(account.grossBoard)));
    lines.push_back(
        formatted("Discount (%s) at %.2f%% = %c %.02f", account.discountDescription.str().c_str(),
                  shown(account.discountPercentage), sign, shown(account.discountAmount)));
    lines.push_back(formatted("Net Board:  %c %.02f", sign, shown(account.netBoard)));
    lines.push_back(formatted("Extras:  %s\t%c %.02f", account.extrasDescription.str().c_str(),
                              sign, shown(account.extrasAmount)));
    if (account.standardExtraCharged.get() != 0)
        lines.push_back(formatted("%s: \t%c %.02f", rates.standardExtraName.str().c_str(), sign,
                                  shown(rates.standardExtraCharge)));
    lines.push_back(formatted("Credit:  %s\t%c %.02f", account.creditDescription.str().c_str(),
                              sign, shown(account.creditAmount)));
    lines.push_back(formatted("Original Rate: %c%.02f", poundSign, shown(account.oldRate)));
    lines.push_back(formatted("Current Rate: %c%.02f", poundSign, shown(account.rateUsed)));
    lines.push_back(formatted("Final Balance:  %c %.02f", sign, shown(account.finalBalance)));
    if (rates.inSterling()) {
        lines.push_back(formatted("\tEquivalent Euros = %.02f", shown(account.euroEquivalent)));
        lines.push_back(formatted("\tExchange rate used: %c1 = %dp", poundSign,
                                  account.pencePerEuroWhole.get()));
    }
    if (formatted("%.2f", shown(account.boardAtOldRate)) == "9999.99") {
        lines.emplace_back();
        lines.emplace_back("            Abbreviated Data from 16-bit file");
    }
    return lines;
}

AccountNumberEntry readAccountNumberEntry(std::string_view typed)
{
    if (trim(typed).empty())
        return {Message{"No Search details entered", "Data Missing", MessageIcon::Exclamation}, 0};
    const int number = leadingInt(typed);
    if (number == 0)
        return {Message{"Zero is an illegal number for an account", "Data Error",
                        MessageIcon::Exclamation},
                0};
    return {std::nullopt, number};
}

std::vector<FiledAccount> accountsNumbered(const DataFolder& folder, int number)
{
    std::vector<FiledAccount> found;
    AccountBook book;
    for (const std::string& name : folder.namesWithExtension(extension::accountBook)) {
        const std::string code = name.substr(0, name.find('.'));
        if (!isSafeClientCode(code) || !folder.read(name, book))
            continue;
        for (const AccountRecord& account : book.accounts) {
            if (account.receiptNumber.get() == number)
                found.push_back({code, account});
        }
    }
    return found;
}

std::vector<std::string> numberedAccountLines(const DataFolder& folder, int number)
{
    std::vector<std::string> lines;
    ClientRecord client;
    std::string clientRead;
    for (const FiledAccount& filed : accountsNumbered(folder, number)) {
        if (filed.code != clientRead) {
            readClientRecord(folder, filed.code, client);
            clientRead = filed.code;
        }
        addNumberedAccount(lines, client, filed.account);
    }
    if (lines.empty()) {
        lines.assign(5, std::string());
        lines.push_back(formatted("   No account was found numbered %d", number));
    }
    return lines;
}

} // namespace purrlodge
