#include "accounts/EstablishmentDetails.h"

#include <string>
#include <string_view>

#include "accounts/CatteryFiles.h"
#include "ports/Ui.h"
#include "store/TextHelpers.h"

namespace purrlodge {

namespace {

constexpr std::string_view redCheques = "**RED**";
constexpr std::string_view blackCheques = "**BLACK**";
constexpr std::size_t editLength = 80;

// A required entry counts as missing when it is empty or begins with a blank.
bool missingEntry(std::string_view text)
{
    return text.empty() || text.front() == ' ';
}

} // namespace

EstablishmentForm establishmentFormFrom(const EstablishmentRecord& establishment)
{
    EstablishmentForm form;
    form.name = establishment.name.str();
    form.manager = establishment.manager.str();
    for (int line = 0; line < 4; ++line)
        form.address[line] = establishment.address[line].str();
    form.telephone = establishment.telephone.str();
    form.fax = establishment.fax.str();
    form.email = establishment.email.str();
    form.vaccinationYears = establishment.vaccinationYears.str();
    for (int line = 0; line < 3; ++line)
        form.arrivalSheetLine[line] = establishment.arrivalSheetLine[line].str();
    form.namesOnAccounts = establishment.namesOnAccounts.str();
    if (!establishment.managerTypeSize.isEmpty())
        form.typeSize = establishment.managerTypeSize.str();
    form.chequesPayableTo = establishment.chequesPayableTo.str();

    const std::string flags = establishment.displayFlags.str();
    form.onArrivalSheet = flags.find('C') != std::string::npos;
    form.onAccountSheet = flags.find('A') != std::string::npos;
    form.inRed = establishment.chequesColour.str() == redCheques;
    return form;
}

FormVerdict acceptEstablishmentForm(const EstablishmentForm& form,
                                    EstablishmentRecord& establishment, const DataFolder& folder,
                                    Ui& ui)
{
    const std::string_view name = std::string_view(form.name).substr(0, editLength);
    const std::string_view vaccination =
        std::string_view(form.vaccinationYears).substr(0, editLength);
    if (missingEntry(name) || missingEntry(vaccination)) {
        ui.showMessage({"You Must Provide at least the Establishment's Name\nand the "
                        "Duration of Vaccination validity.",
                        "Entry Void", MessageIcon::Exclamation});
        return FormVerdict::EndProgram;
    }

    EstablishmentRecord record = establishment;
    record.name.set(form.name);
    record.manager.set(form.manager);
    for (int line = 0; line < 4; ++line)
        record.address[line].set(form.address[line]);
    record.telephone.set(form.telephone);
    record.fax.set(form.fax);
    record.email.set(form.email);
    record.vaccinationYears.set(form.vaccinationYears);
    for (int line = 0; line < 3; ++line)
        record.arrivalSheetLine[line].set(form.arrivalSheetLine[line]);
    record.namesOnAccounts.set(form.namesOnAccounts);
    record.managerTypeSize.set(form.typeSize);
    record.chequesPayableTo.set(form.chequesPayableTo);

    for (auto* optional : {&record.arrivalSheetLine[0], &record.arrivalSheetLine[1],
                           &record.arrivalSheetLine[2], &record.namesOnAccounts}) {
        if (!hasLetterOrDigit(optional->str()))
            optional->clear();
    }

    std::string flags;
    if (form.onArrivalSheet)
        flags += 'C';
    if (form.onAccountSheet)
        flags += 'A';
    record.displayFlags.set(flags);

    // Only the first character of the type size counts, so "12" reads as 1.
    const char first = form.typeSize.empty() ? '\0' : form.typeSize.front();
    const int typeSize = first >= '0' && first <= '9' ? first - '0' : 0;
    if (typeSize < 1 || typeSize > 5) {
        ui.showMessage(
            {"Manager's name Text Size must be between 1 and 5 (incl)", "Text Size Error"});
        return FormVerdict::StayOpen;
    }
    record.displayFlags.set(flags + static_cast<char>('0' + typeSize));
    record.chequesColour.set(form.inRed ? redCheques : blackCheques);
    if (!saveEstablishment(folder, record))
        return FormVerdict::StayOpen;
    establishment = record;
    return FormVerdict::Accept;
}

} // namespace purrlodge
