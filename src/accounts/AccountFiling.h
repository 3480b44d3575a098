#pragma once

#include <string>
#include <string_view>

#include "accounts/AccountBook.h"
#include "accounts/AccountRecord.h"

namespace purrlodge {

class DataFolder;

// Reads the client's account book "<code>.ACR". A book that is missing or
// cannot be read is an empty book (header 0, every slot empty), never the
// book of another client. Returns whether the file could be read.
bool readAccountBook(const DataFolder& folder, std::string_view code, AccountBook& book);

// Writes the book whole; a failure has been told to the person.
[[nodiscard]] bool writeAccountBook(const DataFolder& folder, std::string_view code,
                                    const AccountBook& book);

// Files the account as the newest: a substitute replaces slot 9; otherwise
// slots 1..9 move down to 0..8 (the oldest in slot 0 is dropped) and the
// account takes slot 9.
void placeAccount(AccountBook& book, const AccountRecord& account, bool substitute);

// Deletes the account numbered `receiptNumber`, looked for from slot 9 down
// to slot 1 (slot 0 is never matched): every older slot moves up over it and
// slot 0 is emptied. Whether an account was deleted.
bool removeAccount(AccountBook& book, int receiptNumber);

// Two accounts look similar when their arrival dates, or their departure
// dates, lie less than four days apart either way.
[[nodiscard]] bool accountsLookSimilar(const AccountRecord& newer, const AccountRecord& filed);

// The question of "Complication!" (DIALOG 79) about the new account and the
// filed one it looks like.
[[nodiscard]] std::string similarAccountQuestion(const AccountRecord& newer,
                                                 const AccountRecord& filed);

} // namespace purrlodge
