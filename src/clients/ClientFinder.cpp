#include "clients/ClientFinder.h"

#include "store/CatSlots.h"
#include "store/ClientFiles.h"
#include "store/DataFolder.h"
#include "store/TextHelpers.h"

namespace purrlodge {

namespace {

Message tooManyMatches(FinderSearch search)
{
    // The cat search's title has always said 8 although both searches stop at 12.
    return {"Too Many Matches", search == FinderSearch::Person ? "Matches > 12" : "Matches > 8",
            MessageIcon::None};
}

std::string matchRow(std::string_view surname, const ClientRecord& client)
{
    return std::string(surname) + ' ' + catListText(client);
}

void findPeople(const DataFolder& folder, const ClientIndex& index, std::string_view text,
                FinderResult& result)
{
    for (int entry = 1; entry <= index.usedCount(); ++entry) {
        const std::string surname = index.entries[entry].key.str();
        if (surname.empty() || surname[0] != text[0] || !contains(surname, text))
            continue;
        if (static_cast<int>(result.matches.size()) == finderMatchLimit) {
            result.tooManyMatches = tooManyMatches(FinderSearch::Person);
            break;
        }
        result.matches.push_back({surname, index.entries[entry].code.str(), entry, {}});
    }
    // Only the rows shown need a client record, for their cat lists.
    ClientRecord client;
    for (auto& match : result.matches) {
        readClientRecord(folder, match.code, client);
        match.row = matchRow(match.surname, client);
    }
}

void findCats(const DataFolder& folder, const ClientIndex& index, std::string_view text,
              FinderResult& result)
{
    ClientRecord client;
    for (int entry = 1; entry <= index.usedCount(); ++entry) {
        const std::string code = index.entries[entry].code.str();
        readClientRecord(folder, code, client);
        for (int slot = 0; slot < catSlotCount; ++slot) {
            if (!contains(client.catName[slot].str(), text))
                continue;
            if (static_cast<int>(result.matches.size()) == finderMatchLimit) {
                result.tooManyMatches = tooManyMatches(FinderSearch::Cat);
                return;
            }
            const std::string surname = client.surname.str();
            result.matches.push_back({surname, code, 0, matchRow(surname, client)});
        }
    }
}

} // namespace

FinderNameCheck checkFinderName(std::string_view text, bool anyFirstCharacter, bool& diagnostics)
{
    if (text == inspectModeOnKeyword || text == inspectModeOffKeyword) {
        diagnostics = text == inspectModeOnKeyword;
        return {FinderNameVerdict::DiagnosticsSwitched, std::nullopt};
    }
    if (!hasLetterOrDigit(text))
        return {FinderNameVerdict::AskAgain,
                Message{"You have not enetered a name!", "Name Error", MessageIcon::None}};
    if (!anyFirstCharacter && !(text[0] >= 'A' && text[0] <= 'Z'))
        return {FinderNameVerdict::AskAgain,
                Message{"The name does not start with a Capital Letter!!", "Name Error",
                        MessageIcon::None}};
    return {FinderNameVerdict::Search, std::nullopt};
}

FinderResult findClients(const DataFolder& folder, const ClientIndex& index, FinderSearch search,
                         std::string_view text)
{
    FinderResult result;
    if (!text.empty()) {
        if (search == FinderSearch::Person)
            findPeople(folder, index, text, result);
        else
            findCats(folder, index, text, result);
    }

    if (result.matches.empty()) {
        result.rows.push_back("No " +
                              std::string(search == FinderSearch::Person ? "Client" : "Cat") +
                              " of name " + std::string(text) + " found");
    } else {
        for (const auto& match : result.matches)
            result.rows.push_back(match.row);
    }
    return result;
}

std::string catListText(const ClientRecord& client)
{
    if (!isCatSlotUsed(client, 0))
        return "(No cat now)";
    std::string list = "(" + client.catName[0].str();
    for (int slot = 1; slot < catSlotCount && isCatSlotUsed(client, slot); ++slot)
        list += ", " + client.catName[slot].str();
    return list + ')';
}

FinderHelpTexts finderHelpTexts()
{
    return {"Search for Person: type the client's surname, or its beginning, with its capital "
            "letter and exactly as it is spelt (upper and lower case count). \"Wo\" finds "
            "Wood, Woodfield and Wolf.",
            "Search for Cat: type any part of the cat's name (upper and lower case count). "
            "\"ig\" finds Tigger and Pig. At most 12 matches are offered: type more of the "
            "name to narrow the search."};
}

} // namespace purrlodge
