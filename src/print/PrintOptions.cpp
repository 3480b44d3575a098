#include "print/PrintOptions.h"

#include <string>

#include "accounts/CatteryFiles.h"
#include "accounts/ColourBlock.h"
#include "accounts/EstablishmentRecord.h"
#include "ports/Profile.h"
#include "print/PrintDialogRule.h"

namespace purrlodge {

namespace {

constexpr int lastNameColour = 10;

char digitOf(ColourItem item)
{
    return static_cast<char>('0' + static_cast<int>(item));
}

} // namespace

int storedPrintDialogMode(const Profile& profile)
{
    const std::string stored = profile.read(printDialogKey);
    if (stored == "0" || stored == "1" || stored == "2")
        return stored[0] - '0';
    return printDialogEveryTime;
}

bool printsInColour(const EstablishmentRecord& establishment, ColourItem item)
{
    return establishment.colourPrinting.str().find(digitOf(item)) != std::string::npos;
}

ColourPrintingForm colourPrintingFormOf(const EstablishmentRecord& establishment,
                                        const ColourBlock& colours, const Profile& profile)
{
    ColourPrintingForm form;
    for (int item = 0; item < colourItemCount; ++item)
        form.inColour[static_cast<std::size_t>(item)] =
            printsInColour(establishment, static_cast<ColourItem>(item));
    const std::uint32_t scheme = colours.scheme.get();
    form.nameColour = scheme <= lastNameColour ? static_cast<int>(scheme) : 0;
    form.namesOnAccount = profile.read(accountNamesKey) == "Y";
    return form;
}

FormVerdict acceptColourPrintingForm(const ColourPrintingForm& form, const DataFolder& folder,
                                     Profile& profile, EstablishmentRecord& establishment,
                                     ColourBlock& colours)
{
    EstablishmentRecord updated = establishment;
    std::string digits;
    for (int item = 0; item < colourItemCount; ++item) {
        if (form.inColour[static_cast<std::size_t>(item)])
            digits += digitOf(static_cast<ColourItem>(item));
    }
    updated.colourPrinting.set(digits);
    ColourBlock scheme = colours;
    scheme.scheme.set(static_cast<std::uint32_t>(
        form.nameColour >= 0 && form.nameColour <= lastNameColour ? form.nameColour : 0));

    if (!saveEstablishment(folder, updated))
        return FormVerdict::StayOpen;
    establishment = updated;
    if (!saveColourBlock(folder, scheme))
        return FormVerdict::StayOpen;
    colours = scheme;
    if (!profile.write(accountNamesKey, form.namesOnAccount ? "Y" : "N"))
        return FormVerdict::StayOpen;
    return FormVerdict::Accept;
}

} // namespace purrlodge
