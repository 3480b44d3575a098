#include "app/commands/CatterySetup.h"

#include "accounts/CatteryFiles.h"
#include "accounts/EstablishmentDetails.h"
#include "accounts/ReceiptNumberSetup.h"
#include "app/Session.h"

namespace purrlodge {

std::optional<int> openEstablishmentDetails(Session& session,
                                            EstablishmentDetailsQuestion& questions)
{
    const std::optional<FormVerdict> verdict = questions.fillEstablishmentDetails(
        establishmentFormFrom(session.establishment), session.folder.path(),
        [&session](const EstablishmentForm& form) {
            return acceptEstablishmentForm(form, session.establishment, session.folder,
                                           session.ports.ui);
        });
    if (verdict == FormVerdict::EndProgram)
        return 0;
    if (verdict == FormVerdict::Accept) {
        if (const std::optional<int> typeSize = managerTypeSizeOf(session.establishment))
            session.shell.managerTypeSize = *typeSize;
    }
    return std::nullopt;
}

std::optional<int> editCatteryDetails(Session& session, CatterySetupQuestions& questions)
{
    return openEstablishmentDetails(session, questions);
}

void setRates(Session& session, CatterySetupQuestions& questions)
{
    const RatesForm initial = openRatesForm(session.rates, session.folder, session.ports.clock);
    questions.fillRates(initial, [&session](const RatesForm& form) {
        return acceptRatesForm(form, session.rates, session.folder, session.ports.clock);
    });
}

void setEuroExchangeRate(Session& session, CatterySetupQuestions& questions)
{
    questions.fillExchangeRate(
        exchangeRateFormFrom(session.exchangeRate), [&session](const ExchangeRateForm& form) {
            return acceptExchangeRateForm(form, session.exchangeRate, session.folder);
        });
}

void setStandardExtra(Session& session, CatterySetupQuestions& questions)
{
    questions.fillStandardExtra(
        standardExtraFormFrom(session.rates), [&session](const StandardExtraForm& form) {
            return acceptStandardExtraForm(form, session.rates, session.folder);
        });
}

void setAccountNumber(Session& session, CatterySetupQuestions& questions)
{
    questions.fillReceiptNumber(
        receiptNumberOffer(session.index), [&session](const std::string& typed) {
            return acceptReceiptNumber(typed, session.index, session.folder);
        });
}

} // namespace purrlodge
