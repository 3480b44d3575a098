#pragma once

#include <optional>
#include <string>
#include <string_view>

#include "store/ClientRecord.h"

namespace purrlodge {

class DataFolder;

// The memo reminder (DIALOG 63 "An Auto Memo Exists!") raised before an
// arrival sheet or an account is made for a client.

// The text of the client's auto memo, or nothing when the client has none
// (no "<code>.ANT", or one that cannot be read).
[[nodiscard]] std::optional<std::string> readAutoMemo(const DataFolder& folder,
                                                      std::string_view code);

// "An Auto Memo exists for %s %s" with the first name and surname.
[[nodiscard]] std::string autoMemoCaption(const ClientRecord& client);

} // namespace purrlodge
