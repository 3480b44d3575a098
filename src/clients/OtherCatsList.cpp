#include "clients/OtherCatsList.h"

#include <algorithm>
#include <fstream>

#include "clients/EarlierCatRecord.h"
#include "clients/NoteBook.h"
#include "clients/OtherCatsFile.h"
#include "store/ClientFiles.h"
#include "store/DataFolder.h"
#include "store/TextHelpers.h"

namespace purrlodge {

namespace {

std::ifstream openClientFile(const DataFolder& folder, std::string_view code,
                             std::string_view fileExtension)
{
    return folder.openForReading(clientFileName(code, fileExtension));
}

// "%s, %s, %s, %c, DOB = %s, Notified (%s) = %s", then the note, then a blank line.
void listEarlierCats(const DataFolder& folder, std::string_view code,
                     std::vector<std::string>& lines)
{
    std::ifstream file = openClientFile(folder, code, extension::earlierCats);
    if (!file)
        return;
    EarlierCatRecord cat{};
    // A short record at the end of the file is not a record.
    for (int listed = 0;
         listed < earlierCatsListed && file.read(reinterpret_cast<char*>(&cat), sizeof cat);
         ++listed) {
        // The fixed words always give the record a line, even when it is blank.
        lines.push_back(cat.name.str() + ", " + cat.breed.str() + ", " + cat.colour.str() + ", " +
                        earlierCatSexLetter(cat.sex.get()) + ", DOB = " + cat.dateOfBirth.str() +
                        ", Notified (" + cat.notifiedTo.str() + ") = " + cat.notifiedValue.str());
        if (hasLetterOrDigit(cat.note.str()))
            lines.push_back(cat.note.str());
        lines.emplace_back(" ");
    }
}

// Each non-empty line of the note book is listed, a very long one in pieces.
void listNoteBook(const DataFolder& folder, std::string_view code, std::vector<std::string>& lines)
{
    for (const std::string& line : noteBookFileLines(folder, code))
        for (std::size_t piece = 0; piece < line.size(); piece += noteBookLineLimit)
            lines.emplace_back(line.substr(piece, noteBookLineLimit));
}

// "%s  %s  %s %s:    %s" (name, breed, colour, reason, history) and the notes.
void listOtherCats(const DataFolder& folder, std::string_view code, std::vector<std::string>& lines)
{
    OtherCatsFile others{};
    folder.read(clientFileName(code, extension::otherCats), others);
    for (const auto& cat : others.cats) {
        if (cat.name.isEmpty())
            continue;
        lines.push_back(cat.name.str() + "  " + cat.breed.str() + "  " + cat.colour.str() + ' ' +
                        cat.reason.str() + ":    " + cat.history.str());
        if (!cat.notes.isEmpty())
            lines.push_back("     " + cat.notes.str());
    }
}

} // namespace

char earlierCatSexLetter(std::int32_t sexCode)
{
    switch (sexCode) {
    case 4:
        return 'f';
    case 3:
        return 'F';
    case 2:
        return 'm';
    default:
        return 'M';
    }
}

OtherCatsListing otherCatsListing(const DataFolder& folder, std::string_view code,
                                  const ClientRecord& client, OtherCatsMode mode)
{
    const std::string names = client.firstName.str() + ' ' + client.surname.str();
    OtherCatsListing listing;
    if (mode == OtherCatsMode::EarlierSpecialNotes) {
        listEarlierCats(folder, code, listing.lines);
        // The list is about the former cats whether or not any special notes
        // were kept, so the heading says so.
        listing.heading = "\nSummary of previous cats belonging to " + names;
    } else {
        listNoteBook(folder, code, listing.lines);
        listing.heading = "Special Notes for:  " + names;
    }
    listOtherCats(folder, code, listing.lines);
    return listing;
}

} // namespace purrlodge
