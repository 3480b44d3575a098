#include "accounts/AccountFiling.h"

#include <cstring>

#include "store/ClientFiles.h"
#include "store/DataFolder.h"
#include "store/Dates.h"
#include "store/TextHelpers.h"

namespace purrlodge {

namespace {

constexpr std::int64_t similarWithin = 4 * secondsPerDay; // 345,600 seconds

bool near(std::string_view a, std::string_view b)
{
    const std::int64_t apart = dateToNumber(a) - dateToNumber(b);
    return apart < similarWithin && apart > -similarWithin;
}

} // namespace

bool readAccountBook(const DataFolder& folder, std::string_view code, AccountBook& book)
{
    return folder.read(clientFileName(code, extension::accountBook), book);
}

bool writeAccountBook(const DataFolder& folder, std::string_view code, const AccountBook& book)
{
    return folder.write(clientFileName(code, extension::accountBook), book);
}

void placeAccount(AccountBook& book, const AccountRecord& account, bool substitute)
{
    constexpr int newest = accountBookSlots - 1;
    if (!substitute)
        std::memmove(&book.accounts[0], &book.accounts[1], sizeof(AccountRecord) * newest);
    book.accounts[newest] = account;
}

bool removeAccount(AccountBook& book, int receiptNumber)
{
    for (int slot = accountBookSlots - 1; slot >= 1; --slot) {
        if (book.accounts[slot].receiptNumber.get() != receiptNumber)
            continue;
        std::memmove(&book.accounts[1], &book.accounts[0], sizeof(AccountRecord) * slot);
        std::memset(&book.accounts[0], 0, sizeof(AccountRecord));
        return true;
    }
    return false;
}

bool accountsLookSimilar(const AccountRecord& newer, const AccountRecord& filed)
{
    return near(newer.arrivalDate.str(), filed.arrivalDate.str()) ||
           near(newer.departureDate.str(), filed.departureDate.str());
}

std::string similarAccountQuestion(const AccountRecord& newer, const AccountRecord& filed)
{
    return formatted(
        "This account No.%d (Arrival Date %s, Depart date %s) looks very similar to a previous "
        "account Numbered %d (Arrival date %s, Depart date %s.\nDo you wish to substitute this "
        "account for the ealier record?\n\nUnless there is good reason for holding both these "
        "similar accounts you should answer 'YES'",
        newer.receiptNumber.get(), newer.arrivalDate.str().c_str(),
        newer.departureDate.str().c_str(), filed.receiptNumber.get(),
        filed.arrivalDate.str().c_str(), filed.departureDate.str().c_str());
}

} // namespace purrlodge
