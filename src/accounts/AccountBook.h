#pragma once

#include <cstddef>

#include "accounts/AccountRecord.h"
#include "store/LittleEndian.h"

namespace purrlodge {

inline constexpr int accountBookSlots = 10;

// A client's account book, the file "<code>.ACR" (9064 bytes). Slot 9 holds the
// most recent account, older ones sit lower; an empty slot has receipt number 0.
struct AccountBook {
    Int32LE header;                           // 0 (kept as read)
    AccountRecord accounts[accountBookSlots]; // 4
};

static_assert(sizeof(AccountBook) == 9064 && alignof(AccountBook) == 1);
static_assert(offsetof(AccountBook, accounts) == 4);

} // namespace purrlodge
