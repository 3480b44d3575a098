#include "clients/NoteBook.h"

#include <algorithm>
#include <fstream>

#include "clients/AutoMemo.h"
#include "clients/OtherCatsList.h"
#include "ports/Ui.h"
#include "store/ClientFiles.h"
#include "store/DataFolder.h"
#include "store/TextHelpers.h"

namespace purrlodge {

std::string noteBookHeading(const ClientRecord& client)
{
    return formatted("Notes for %s %s %s", client.style.str().c_str(),
                     client.firstName.str().c_str(), client.surname.str().c_str());
}

std::vector<std::string> noteBookFileLines(const DataFolder& folder, std::string_view code)
{
    std::vector<std::string> lines;
    std::ifstream file = folder.openForReading(clientFileName(code, extension::noteBook));
    if (!file)
        return lines;
    std::string text(noteBookLargest, '\0');
    file.read(text.data(), static_cast<std::streamsize>(text.size()));
    text.resize(static_cast<std::size_t>(file.gcount()));
    std::size_t start = 0;
    while (start < text.size()) {
        const std::size_t end = std::min(text.find('\n', start), text.size());
        std::string_view line(text.data() + start, end - start);
        if (!line.empty() && line.back() == '\r')
            line.remove_suffix(1);
        lines.emplace_back(line);
        start = end + 1;
    }
    return lines;
}

std::vector<std::string> readNoteBook(const DataFolder& folder, std::string_view code)
{
    std::vector<std::string> lines = noteBookFileLines(folder, code);
    for (std::string& line : lines)
        line.resize(std::min(line.size(), noteBookLineLimit));
    return lines;
}

bool saveNoteBook(const DataFolder& folder, std::string_view code,
                  const std::vector<std::string>& lines)
{
    const std::string name = clientFileName(code, extension::noteBook);
    if (lines.empty() || !hasLetterOrDigit(lines.back())) {
        if (!folder.exists(name) || folder.remove(name))
            return true;
        folder.ui().showMessage({"The file " + folder.fileName(name) + " could not be deleted.",
                                 "File Error", MessageIcon::Exclamation});
        return false;
    }
    std::string text;
    for (const std::string& line : lines) {
        text.append(line, 0, std::min(line.size(), noteBookLineLimit));
        text += "\r\n";
    }
    return folder.replaceBytes(name, text.data(), text.size());
}

std::string memoFileText(std::string_view typed)
{
    std::string text;
    for (std::size_t at = 0; at < typed.size(); ++at) {
        if (typed[at] == '\r')
            continue;
        if (typed[at] == '\n')
            text += '\r';
        text += typed[at];
    }
    return text;
}

bool saveAutoMemo(const DataFolder& folder, std::string_view code, std::string_view text)
{
    AutoMemo memo{};
    memo.text.set(std::string_view(memoFileText(text)).substr(0, autoMemoLimit));
    return folder.write(clientFileName(code, extension::autoMemo), memo);
}

} // namespace purrlodge
