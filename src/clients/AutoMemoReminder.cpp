#include "clients/AutoMemoReminder.h"

#include "clients/AutoMemo.h"
#include "store/ClientFiles.h"
#include "store/DataFolder.h"
#include "store/TextHelpers.h"

namespace purrlodge {

std::optional<std::string> readAutoMemo(const DataFolder& folder, std::string_view code)
{
    AutoMemo memo;
    if (!folder.read(clientFileName(code, extension::autoMemo), memo))
        return std::nullopt;
    return memo.text.str();
}

std::string autoMemoCaption(const ClientRecord& client)
{
    return formatted("An Auto Memo exists for %s %s", client.firstName.str().c_str(),
                     client.surname.str().c_str());
}

} // namespace purrlodge
