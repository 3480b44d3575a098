#include "housekeeping/ReportPeriod.h"

#include "ports/Clock.h"
#include "store/Dates.h"

namespace purrlodge {

namespace {

constexpr const char* periodErrorTitle = "Report Period";

std::optional<Message> dateError(std::string& date, const char* which, int currentYear)
{
    if (countCheckAndNormalise(date, 2) != 0)
        return Message{std::string("Please type the ") + which + " date as dd/mm/yy.",
                       periodErrorTitle, MessageIcon::Exclamation};
    // Each date is checked alone: the period's own order is checked after.
    DateEntryState state;
    const int code = validateDate(date, true, currentYear, state);
    if (code != DateOk)
        return Message{std::string(dateErrorMessage(code)) + "\n(the " + which + " date)",
                       periodErrorTitle, MessageIcon::Exclamation};
    return std::nullopt;
}

} // namespace

ReportPeriod thisYearSoFar(const Clock& clock)
{
    const CivilTime today = clock.toLocal(clock.now());
    return {formatDateText(1, 1, today.year % 100),
            formatDateText(today.day, today.month, today.year % 100)};
}

std::optional<Message> reportPeriodError(ReportPeriod& period, int currentYear)
{
    if (auto error = dateError(period.from, "From", currentYear))
        return error;
    if (auto error = dateError(period.to, "To", currentYear))
        return error;
    if (dateToNumber(period.to) < dateToNumber(period.from))
        return Message{"The period ends before it starts: the To date must not be before the "
                       "From date.",
                       periodErrorTitle, MessageIcon::Exclamation};
    return std::nullopt;
}

} // namespace purrlodge
