#pragma once

#include <string>
#include <string_view>
#include <vector>

#include "store/ClientIndex.h"

namespace purrlodge {

class Clock;
class DataFolder;
class Ui;

// The past clients (OFIDEX.CTL) and the removal of a client's files.

// "Previous Client list as on %s %d/%d/%d": today's day name, day, month and
// four-figure year.
[[nodiscard]] std::string pastClientsCaption(const Clock& clock);

// The lines of Past Clients (DIALOG 53), one per entry of the list in its
// order: " surname first\tcats\taddress\tcode", the cats "(No cat) " or the
// first three names each followed by "," and a "+" for each further cat, the
// non-empty address lines each followed by ",". A list that cannot be read
// is the one line "There are no Past Clients filed".
[[nodiscard]] std::vector<std::string> pastClientLines(const DataFolder& folder);

// The client code of a list line: the text after its last tab.
[[nodiscard]] std::string codeOfPastClientLine(std::string_view line);

// Deletes every file of the client's code ("<code>.*", the code compared
// without regard to case) from the data folder. Each file that cannot be
// deleted is told ("<path> - could not be removed!", "Deletion Error") and
// the rest are still tried. A code that is not a safe client code deletes
// nothing. Whether every file went.
bool removeClientFiles(const DataFolder& folder, std::string_view code, Ui& ui);

// Moves the current client at `entry` of the index to the past clients:
// OFIDEX.CTL gains the entry (sorted) and is written first, so a crash in
// between leaves the client in both lists rather than in neither; then the
// entry leaves `index` and FIDEX.CTL is written. Whether both were written;
// `index` changes only with its file.
[[nodiscard]] bool transferToPastClients(const DataFolder& folder, ClientIndex& index, int entry);

// What Restore Client came to.
enum class RestoreResult { Restored, NotFound, ListFull, WriteFailed };

// Moves the past client of `code` back to the current clients: FIDEX.CTL
// gains the entry and is written, then OFIDEX.CTL loses it. A full client
// list refuses.
[[nodiscard]] RestoreResult restorePastClient(const DataFolder& folder, ClientIndex& index,
                                              std::string_view code);

// Delete Client of Past Clients: the client's files removed, then its entry
// leaves OFIDEX.CTL. False when no entry of the list has the code ("Client
// could not be found", "Data Errar" is for the caller to tell) or the list
// could not be written.
enum class PastDeletion { Deleted, NotFound, WriteFailed };
[[nodiscard]] PastDeletion deletePastClient(const DataFolder& folder, std::string_view code,
                                            Ui& ui);

} // namespace purrlodge
