#include "app/commands/ArrivalSheet.h"

#include "accounts/AccountDateChecks.h"
#include "app/CommandIds.h"
#include "app/Session.h"
#include "app/commands/Printing.h"
#include "housekeeping/AdmissionRegister.h"
#include "print/AdmissionRegisterPages.h"
#include "store/ClientFiles.h"
#include "store/TextHelpers.h"

namespace purrlodge {

namespace {

bool anyCatTicked(const ArrivalForm& form)
{
    for (std::size_t s = 0; s < form.cats.size(); ++s)
        if (form.catShown[s] && form.cats[s].ticked)
            return true;
    return false;
}

// OK of the arrival form: the dates checked (and shortened), at least one cat,
// then the stay record saved whole and the client's current stay dates with
// it. Nothing in memory changes unless the stay record was saved.
FormVerdict acceptArrivalForm(Session& session, ArrivalQuestions& questions, ArrivalForm& form)
{
    if (!stayDatesAccepted(
            checkStayDates(form.arrival, form.departure, session.currentYear, session.dates),
            questions))
        return FormVerdict::StayOpen;
    if (!anyCatTicked(form)) {
        session.ports.ui.showMessage(
            {"No Cats have been entered!", "Names no Ticked", MessageIcon::Exclamation});
        return FormVerdict::StayOpen;
    }
    const StayRecord stay =
        stayRecordOf(form, session.client, session.rates, session.stay, session.ports.clock);
    if (!writeStayRecord(session.folder, session.clientCode, stay))
        return FormVerdict::StayOpen;
    session.stay = stay;

    ClientRecord client = session.client;
    client.arrivalDate.set(form.arrival);
    client.departureDate.set(form.departure);
    if (!writeClientRecord(session.folder, session.clientCode, client))
        return FormVerdict::StayOpen;
    session.client = client;

    // The choice of sheets is only a convenience: a settings file that cannot
    // take it has been reported and the sheets print all the same.
    static_cast<void>(session.ports.profile.write(arrivalSheetsKey, sheetsSetting(form.sheets)));
    return FormVerdict::Accept;
}

// This month, from its first day to its last.
RegisterPeriod thisMonth(const Clock& clock)
{
    const CivilTime today = clock.toLocal(clock.now());
    const int year = today.year % 100;
    return {formatDateText(1, today.month, year),
            formatDateText(monthLength(today.month, isLeapYear(today.year)), today.month, year)};
}

// The period's dates as typed, checked as a stay's dates are but for length:
// a register may span any number of weeks.
FormVerdict acceptRegisterPeriod(Session& session, ArrivalQuestions& questions,
                                 RegisterPeriod& period)
{
    const AccountDatesCheck check =
        checkStayDates(period.from, period.to, session.currentYear, session.dates);
    if (check.verdict == AccountDatesVerdict::ApparentDateError) {
        questions.showApparentDateError(
            {"Apparent Date Error", check.code, check.message, check.dateLabel});
        return FormVerdict::StayOpen;
    }
    return FormVerdict::Accept;
}

} // namespace

void makeArrivalSheet(Session& session, ArrivalQuestions& questions)
{
    if (!findClient(session, questions, command::makeArrivalSheet))
        return;
    remindOfAutoMemo(session, questions);

    const ArrivalForm initial = openArrivalForm(
        session.client, session.stay, session.establishment, session.rates, session.ports.clock,
        sheetsFromSetting(session.ports.profile.read(arrivalSheetsKey)));
    ArrivalForm accepted;
    const std::optional<FormVerdict> verdict = questions.fillArrivalForm(
        initial, session.rates,
        [&](const ArrivalForm& typed) {
            ArrivalForm form = typed;
            const FormVerdict result = acceptArrivalForm(session, questions, form);
            if (result == FormVerdict::Accept)
                accepted = form;
            return result;
        },
        [&] { printAdmissionRegister(session, questions); });
    if (verdict != FormVerdict::Accept)
        return;
    printArrivalSheets(session, accepted.sheets);
}

void printAdmissionRegister(Session& session, ArrivalQuestions& questions)
{
    RegisterPeriod accepted;
    const std::optional<FormVerdict> verdict = questions.fillRegisterPeriod(
        thisMonth(session.ports.clock), [&](const RegisterPeriod& typed) {
            RegisterPeriod period = typed;
            const FormVerdict result = acceptRegisterPeriod(session, questions, period);
            if (result == FormVerdict::Accept)
                accepted = period;
            return result;
        });
    if (verdict != FormVerdict::Accept)
        return;
    const AdmissionRegisterPages pages(
        session.establishment.name.str(), accepted.from + " to " + accepted.to,
        collectAdmissions(session.folder, session.index, dateToNumber(accepted.from),
                          dateToNumber(accepted.to), session.ports.clock));
    printAdmissionRegisterPages(session, pages);
}

} // namespace purrlodge
