#include "accounts/AccountDateChecks.h"

namespace purrlodge {

namespace {

bool isDateError(int code)
{
    return code >= DateYearWrong && code <= DateDepartureBeforeArrival;
}

AccountDatesCheck apparentDateError(int code, DateKind kind)
{
    return {AccountDatesVerdict::ApparentDateError, code, std::string(dateErrorMessage(code)),
            std::string(dateKindLabel(kind))};
}

int checkDate(std::string_view date, DateKind kind, int currentYear, DateEntryState& state)
{
    std::string text(date);
    state.kind = kind;
    return validateDate(text, false, currentYear, state);
}

} // namespace

AccountDatesCheck checkAccountDates(std::string_view arrival, std::string_view departure,
                                    int currentYear, DateEntryState& state,
                                    std::string_view additionalNotes, RatesRecord& rates)
{
    const int arrivalCode = checkDate(arrival, DateKind::ArrivalStart, currentYear, state);
    if (isDateError(arrivalCode))
        return apparentDateError(arrivalCode, DateKind::ArrivalStart);

    rates.accountNote.set(additionalNotes);

    const int departureCode = checkDate(departure, DateKind::DepartureEnd, currentYear, state);
    if (isDateError(departureCode))
        return apparentDateError(departureCode, DateKind::DepartureEnd);
    if (departureCode == DateStayTooLong)
        return {AccountDatesVerdict::AskLongStay,
                departureCode,
                std::string(dateErrorMessage(departureCode)),
                {}};
    return {};
}

AccountDatesCheck checkStayDates(std::string& arrival, std::string& departure, int currentYear,
                                 DateEntryState& state)
{
    if (countCheckAndNormalise(arrival, 2) != 0)
        return apparentDateError(DateEntriesWrong, DateKind::ArrivalStart);
    if (countCheckAndNormalise(departure, 2) != 0)
        return apparentDateError(DateEntriesWrong, DateKind::DepartureEnd);
    // The account note is OK's business: this check's own copy takes the note.
    RatesRecord untouched{};
    return checkAccountDates(arrival, departure, currentYear, state, {}, untouched);
}

} // namespace purrlodge
