#pragma once

#include <string>
#include <string_view>

#include "housekeeping/AddressFile.h"

namespace purrlodge {

inline constexpr std::string_view emailFileName = "ClientEmails.txt";

// The e-mail file: "address,\n" for every current client whose e-mail holds
// a letter or digit and is not exactly "Not Known".
[[nodiscard]] ExportText emailFileText(const DataFolder& folder, const ClientIndex& index);

// "12 email addresses printed to file:\n<path>".
[[nodiscard]] std::string emailsFiledText(int count, std::string_view path);

} // namespace purrlodge
