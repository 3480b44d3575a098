#pragma once

#include <optional>
#include <string>
#include <string_view>
#include <vector>

#include "accounts/AccountBook.h"
#include "accounts/AccountRecord.h"
#include "accounts/RatesRecord.h"
#include "ports/Message.h"
#include "store/ClientRecord.h"

namespace purrlodge {

class Clock;
class DataFolder;

// This Client's Accounts (DIALOG 25): a title and the lines of the list,
// with the receipt number of each account line (0 for the other lines).
struct ClientAccountsList {
    std::string title;
    std::vector<std::string> lines;
    std::vector<int> receiptOfLine;
};

// The list of a client's book, or of no book when it could not be read:
// one "Rec No." line per filed account, oldest first, then a blank line and
// the total of the final balances.
[[nodiscard]] ClientAccountsList clientAccountsList(const AccountBook* book, const Clock& clock);

// The slot of the book holding the account numbered `receiptNumber`, newest
// first; nothing when there is none.
[[nodiscard]] std::optional<int> slotOfAccount(const AccountBook& book, int receiptNumber);

// Account Summary (DIALOG 26): the lines showing a filed account, with the
// charging unit and the standard extra as the rates now set them.
[[nodiscard]] std::vector<std::string> accountSummaryLines(const ClientRecord& client,
                                                           const AccountRecord& account,
                                                           const RatesRecord& rates);

// The number typed into Find Numbered Account (DIALOG 59): nothing typed, or
// 0, is refused with its message; otherwise the number.
struct AccountNumberEntry {
    std::optional<Message> refusal;
    int number = 0;
};
[[nodiscard]] AccountNumberEntry readAccountNumberEntry(std::string_view typed);

// An account filed in a client's book, with the client code its book is
// named by.
struct FiledAccount {
    std::string code;
    AccountRecord account;
};

// Every account numbered `number` in every account book of the data folder:
// books in file-name order (books named by an unsafe code skipped), each
// book's slots oldest first.
[[nodiscard]] std::vector<FiledAccount> accountsNumbered(const DataFolder& folder, int number);

// The lines of DIALOG 60: every account numbered `number` in every account
// book of the data folder (books in file-name order), with its client, dates,
// total and cats; a note that none was found otherwise.
[[nodiscard]] std::vector<std::string> numberedAccountLines(const DataFolder& folder, int number);

} // namespace purrlodge
