#include "accounts/AccountPreparation.h"

#include "store/CatSlots.h"
#include "store/TextHelpers.h"

namespace purrlodge {

namespace {

bool anyCatTicked(const StayRecord& stay, const ClientRecord& client)
{
    for (int slot = 0; slot < catSlotCount; ++slot)
        if (isCatSlotUsed(client, slot) && stay.catInStay[slot].get() != 0)
            return true;
    return false;
}

} // namespace

AccountPreparationForm openAccountPreparation(const ClientRecord& client, const StayRecord& stay,
                                              const RatesRecord& rates, int receiptOffer,
                                              bool hasNoteBook, bool namesLineOn)
{
    AccountPreparationForm form;
    form.clientLine = formatted("%s %s %s", client.style.str().c_str(),
                                client.firstName.str().c_str(), client.surname.str().c_str());

    const bool stayHasDates = hasLetterOrDigit(stay.arrivalDate.str());
    form.arrival = stayHasDates ? stay.arrivalDate.str() : client.arrivalDate.str();
    form.departure = stayHasDates ? stay.departureDate.str() : client.departureDate.str();

    const bool tickAll = !anyCatTicked(stay, client);
    for (int slot = 0; slot < catSlotCount; ++slot) {
        const auto s = static_cast<std::size_t>(slot);
        form.catShown[s] = isCatSlotUsed(client, slot);
        form.cats[s].name = client.catName[slot].str();
        form.cats[s].ticked = form.catShown[s] && (tickAll || stay.catInStay[slot].get() != 0);
    }

    form.receiptNumber = std::to_string(receiptOffer);
    form.standardExtra = openingStandardExtra(rates);
    form.insertNamesLine = namesLineOn;
    form.additionalNotes = rates.accountNote.str().substr(0, additionalNotesLimit);
    form.hasSpecialNotes = hasNoteBook;
    return form;
}

FeeEntries feeEntriesOf(const AccountPreparationForm& form)
{
    FeeEntries entries;
    entries.arrival = form.arrival;
    entries.departure = form.departure;
    for (std::size_t s = 0; s < form.cats.size(); ++s)
        entries.cats[s] = {form.catShown[s] && form.cats[s].ticked, form.cats[s].name};
    entries.extrasDescription = form.extrasDescription;
    entries.creditDescription = form.creditDescription;
    entries.discountDescription = form.discountDescription;
    entries.extrasAmount = form.extrasAmount;
    entries.creditAmount = form.creditAmount;
    entries.discountPercentage = form.discountPercentage;
    entries.standardExtraAmount = form.standardExtra.amountText;
    entries.standardExtraCharged = form.standardExtra.charged;
    return entries;
}

ChargeTexts AccountPreparation::recompute(const AccountPreparationForm& form)
{
    // Without both dates there is no stay to charge: a count from empty dates
    // would be nonsense.
    if (!hasLetterOrDigit(form.arrival) || !hasLetterOrDigit(form.departure))
        return {Message{"The dates of the stay have not been entered yet: press Alter Dates "
                        "to enter them.",
                        "Missing Data", MessageIcon::Exclamation},
                {},
                {},
                {}};
    const FeeResult result =
        computeFee(feeEntriesOf(form), rates_, exchangeRate_, clock_, account_);
    if (!result.computed())
        return {result.refusal, {}, {}, {}};
    return {std::nullopt, chargedDaysText(account_.daysCharged.get(), chargesPerDay(rates_)),
            basicBoardChargeText(account_), discountTestText(account_)};
}

AccountDatesCheck AccountPreparation::alterDates(AccountPreparationForm& form, std::string arrival,
                                                 std::string departure)
{
    const AccountDatesCheck check = checkStayDates(arrival, departure, currentYear_, dates_);
    if (check.verdict == AccountDatesVerdict::ApparentDateError)
        return check;
    form.arrival = arrival;
    form.departure = departure;
    (void)recompute(form);
    return {};
}

int receiptNumberOf(const AccountPreparationForm& form)
{
    return leadingInt(form.receiptNumber);
}

std::optional<Message> receiptNumberProblem(const AccountPreparationForm& form)
{
    if (receiptNumberOf(form) >= 1)
        return std::nullopt;
    return Message{"Zero is an illegal number for an account", "Data Error",
                   MessageIcon::Exclamation};
}

} // namespace purrlodge
