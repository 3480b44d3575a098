#pragma once

#include <functional>
#include <optional>
#include <string>
#include <vector>

#include "housekeeping/AddressFile.h"

namespace purrlodge {

class Session;

// The dialogs of the export and bulk commands.
class ExportQuestions {
public:
    virtual ~ExportQuestions() = default;

    // Address Format (DIALOG 81) with `current` chosen: the style chosen, or
    // nothing on Cancel.
    virtual std::optional<LabelStyle> chooseAddressFormat(LabelStyle current) = 0;

    // Asked once a file has been written: whether to open the data folder to
    // see it.
    virtual bool askToOpenDataFolder(const std::string& fileName) = 0;
    // Opens the folder with the desktop's file manager.
    virtual void openDataFolder(const std::string& folder) = 0;

    // Inactive Clients (DIALOG 82): each OK hands the date typed to `onOk` and
    // shows the text it answers; the dialog stays open until Close.
    using InactiveRule = std::function<std::string(const std::string& typedDate)>;
    virtual void fillInactiveClients(const InactiveRule& onOk) = 0;

    // Most Popular Names (DIALOG 76) showing the lines (tabbed); "File the
    // List" calls `fileTheList` and the list stays open. Whether it ended with
    // Print (false for Close).
    virtual bool showNameList(const std::vector<std::string>& lines,
                              const std::function<void()>& fileTheList) = 0;
};

inline constexpr const char* popularNamesFileName = "PopularNames.txt";
inline constexpr const char* uniqueNamesFileName = "UniqueNames.txt";

// Good-Housekeeping | File Client Addresses (11863): the style asked (kept
// for the run), then every current client's label into "Clientlist.txt".
void fileClientAddresses(Session& session, ExportQuestions& questions);

// Good-Housekeeping | File Client Emails (11883): the known e-mail addresses
// into "ClientEmails.txt".
void fileClientEmails(Session& session, ExportQuestions& questions);

// Special Operations | Mark Inactive Clients (11884): each OK marks every
// current client not seen since the date typed inactive, the others active.
void markInactiveClients(Session& session, ExportQuestions& questions);

// Special Operations | Count Cat Names (11877): the names that occur more
// than once, to print or file.
void countCatNames(Session& session, ExportQuestions& questions);

// Special Operations | List Unique Names (11881): the names that occur
// exactly once; Print still prints those that occur more than once.
void listUniqueNames(Session& session, ExportQuestions& questions);

} // namespace purrlodge
