#pragma once

#include <cstdint>
#include <string>
#include <string_view>

#include "store/ClientRecord.h"

namespace purrlodge {

// The client record's coded fields as text. The details listing, the client
// form and the searches all read them through these.

// The record keeps the mobile number with this tail after it.
inline constexpr std::string_view mobileTerminator = "::";

// The mobile number as the person typed it: the text before the first "::".
[[nodiscard]] std::string mobileNumberOf(const ClientRecord& client);

// The mobile field as it is stored for a typed number: the number and "::".
[[nodiscard]] std::string storedMobileNumber(std::string_view typed);

// The letter of a cat's sex code: 1 'M', 2 'F', 3 'm', anything else 'f'.
// The details listing shows every code so; the client form shows an unstated
// sex (0 or less) as an empty box and otherwise this letter.
[[nodiscard]] char sexLetter(std::int32_t sexCode);

} // namespace purrlodge
