#pragma once

#include <string>
#include <string_view>

#include "store/ClientIndex.h"
#include "store/ClientRecord.h"
#include "store/StayRecord.h"

namespace purrlodge {

class DataFolder;
class RandomDraw;

inline constexpr std::string_view currentIndexFile = "FIDEX.CTL";
inline constexpr std::string_view pastIndexFile = "OFIDEX.CTL";

// The extensions of a client's files, all named by the client code.
namespace extension {
inline constexpr std::string_view clientRecord = ".DAT";
inline constexpr std::string_view stayRecord = ".TXI";
inline constexpr std::string_view accountBook = ".ACR";
inline constexpr std::string_view noteBook = ".NTS";
inline constexpr std::string_view autoMemo = ".ANT";
inline constexpr std::string_view otherCats = ".XC2";
inline constexpr std::string_view earlierCats = ".XCT";
} // namespace extension

// The name of one of a client's files: the code followed by the extension.
[[nodiscard]] std::string clientFileName(std::string_view code, std::string_view extension);

// Reading always clears the record first: a missing or short file gives empty
// fields. Each returns whether the file could be opened (or written; a failed
// write has been told to the person).
bool readClientRecord(const DataFolder& folder, std::string_view code, ClientRecord& client);
[[nodiscard]] bool writeClientRecord(const DataFolder& folder, std::string_view code,
                                     const ClientRecord& client);
bool readStayRecord(const DataFolder& folder, std::string_view code, StayRecord& stay);
[[nodiscard]] bool writeStayRecord(const DataFolder& folder, std::string_view code,
                                   const StayRecord& stay);

bool readIndex(const DataFolder& folder, ClientIndex& index);
[[nodiscard]] bool writeIndex(const DataFolder& folder, const ClientIndex& index);

// Reads OFIDEX.CTL as it stands; a missing file is an empty list and a stored
// count of -1 (how the list has always said empty) is 0.
bool readStoredPastIndex(const DataFolder& folder, ClientIndex& past);
// The same, with a damaged list repaired in memory from its own entries.
bool readPastIndex(const DataFolder& folder, ClientIndex& past);
// Sorts a past-client index the same way and writes it to OFIDEX.CTL.
[[nodiscard]] bool sortAndWritePastIndex(const DataFolder& folder, ClientIndex& past);

enum class AddClientResult { Added, IndexFull, NoCodeFree, WriteFailed };

// Registers a new client whose names are already in the record: makes the
// code (unique among current and past clients), writes the client record
// under it, then the index with the new entry, sorted. The record is written
// first, so a crash never leaves an entry that names no file. Only when both
// are written do `index` and `client` (its code) change; a full index, an
// exhausted code search or a failed write leaves them and the index file as
// they were.
[[nodiscard]] AddClientResult addNewClient(const DataFolder& folder, ClientIndex& index,
                                           ClientRecord& client, RandomDraw& draw);

// The client code of a list line: the line in upper case up to its first tab
// (the whole line when it has none), spelt as the index spells it so that the
// files are found on a case-sensitive file system.
[[nodiscard]] std::string codeOfListLine(std::string_view line, const ClientIndex& index);

// Reads the client record that a list line names.
bool readClientOfListLine(const DataFolder& folder, const ClientIndex& index, std::string_view line,
                          ClientRecord& client);

} // namespace purrlodge
