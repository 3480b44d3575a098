#include "store/ClientFields.h"

#include "store/TextHelpers.h"

namespace purrlodge {

std::string mobileNumberOf(const ClientRecord& client)
{
    return textBefore(client.mobile.str(), mobileTerminator);
}

std::string storedMobileNumber(std::string_view typed)
{
    return std::string(typed) + std::string(mobileTerminator);
}

char sexLetter(std::int32_t sexCode)
{
    switch (sexCode) {
    case 1:
        return 'M';
    case 2:
        return 'F';
    case 3:
        return 'm';
    default:
        return 'f';
    }
}

} // namespace purrlodge
