#include "print/EstablishmentAddress.h"

#include <array>
#include <string>
#include <string_view>

#include "accounts/EstablishmentRecord.h"
#include "print/PrintBuffer.h"

namespace purrlodge {

void addEstablishmentAddress(PrintBuffer& buffer, const EstablishmentRecord& establishment)
{
    constexpr std::array<std::string_view, 4> addressFormats = {
        "3b, 12, 0, 1, n, 000, C", "3b, 12, 0, 1, n, 000, C", "3b, 11, 0, 1, n, 000, C",
        "4b, 8, 0, 1, n, 000, C"};
    for (std::size_t line = 0; line < addressFormats.size(); ++line)
        if (!establishment.address[line].isEmpty())
            buffer.add(establishment.address[line].str(), addressFormats[line]);

    std::string contact;
    if (!establishment.telephone.isEmpty())
        contact += "Tel: " + establishment.telephone.str() + "  ";
    if (!establishment.fax.isEmpty())
        contact += "Fax: " + establishment.fax.str() + "  ";
    if (!contact.empty())
        buffer.add(contact, "5, 11, 0, 3, n, 000, C");
    if (!establishment.email.isEmpty())
        buffer.add("E-mail:  " + establishment.email.str(), "5, 12, 0, 3, n, 000, C");
}

} // namespace purrlodge
