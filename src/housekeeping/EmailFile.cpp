#include "housekeeping/EmailFile.h"

#include "housekeeping/CurrentClients.h"
#include "store/TextHelpers.h"

namespace purrlodge {

ExportText emailFileText(const DataFolder& folder, const ClientIndex& index)
{
    ExportText file;
    forEachCurrentClient(folder, index, [&](const std::string&, const ClientRecord& client) {
        const std::string email = client.email.str();
        // "Not Known", spelt so, stands for no address; other spellings are kept.
        if (hasLetterOrDigit(email) && email != "Not Known") {
            file.text += email + ",\n";
            ++file.count;
        }
        return true;
    });
    return file;
}

std::string emailsFiledText(int count, std::string_view path)
{
    return std::to_string(count) + " email addresses printed to file:\n" + std::string(path);
}

} // namespace purrlodge
