#include "accounts/ReceiptNumberSetup.h"

#include <string_view>

#include "store/ClientFiles.h"
#include "store/TextHelpers.h"

namespace purrlodge {

namespace {

constexpr std::size_t numberEditLength = 7;

} // namespace

std::string receiptNumberOffer(const ClientIndex& index)
{
    const std::int32_t last = index.lastAccountNumber.get();
    if (last == 0)
        return "1000";
    // Unsigned arithmetic wraps where the signed sum would overflow.
    return std::to_string(static_cast<std::int32_t>(static_cast<std::uint32_t>(last) + 1u));
}

FormVerdict acceptReceiptNumber(const std::string& typed, ClientIndex& index,
                                const DataFolder& folder)
{
    // Seven characters hold no number that atoi could overflow.
    const int first = leadingInt(std::string_view(typed).substr(0, numberEditLength));
    ClientIndex updated = index;
    updated.lastAccountNumber.set(first - 1);
    if (!writeIndex(folder, updated))
        return FormVerdict::StayOpen;
    index = updated;
    return FormVerdict::Accept;
}

} // namespace purrlodge
