#pragma once

#include <cstddef>

#include "store/FixedText.h"
#include "store/LittleEndian.h"

namespace purrlodge {

inline constexpr int indexEntryCount = 600;
// Entry 0 is never used, so an index holds at most 599 clients.
inline constexpr int maxClients = indexEntryCount - 1;
inline constexpr std::int32_t currentFormatStamp = 260909;

// One index entry: the sort key (the client's surname) and the client code.
struct IndexEntry {
    FixedText<25> key; // 0
    FixedText<9> code; // 25
};

static_assert(sizeof(IndexEntry) == 34 && alignof(IndexEntry) == 1);
static_assert(offsetof(IndexEntry, code) == 25);

// The client index, "FIDEX.CTL" for current clients and "OFIDEX.CTL" for past
// ones (20416 bytes). Entries 1..count are used.
struct ClientIndex {
    Int32LE formatStamp;                 // 0 (260909, or 0 in an index made at start-up)
    Int32LE count;                       // 4
    Int32LE backupReminderMode;          // 8
    Int32LE lastAccountNumber;           // 12
    IndexEntry entries[indexEntryCount]; // 16

    // The stored count clamped to what the block can hold, so a damaged file
    // never sends a loop past the entries.
    [[nodiscard]] int usedCount() const
    {
        const std::int32_t stored = count.get();
        return stored < 0 ? 0 : (stored > maxClients ? maxClients : static_cast<int>(stored));
    }
};

static_assert(sizeof(ClientIndex) == 20416 && alignof(ClientIndex) == 1);
static_assert(offsetof(ClientIndex, count) == 4);
static_assert(offsetof(ClientIndex, backupReminderMode) == 8);
static_assert(offsetof(ClientIndex, lastAccountNumber) == 12);
static_assert(offsetof(ClientIndex, entries) == 16);

} // namespace purrlodge
