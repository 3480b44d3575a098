#pragma once

#include <optional>
#include <string>

#include "accounts/EstablishmentForm.h"
#include "accounts/ExchangeRateSetup.h"
#include "accounts/RatesSetup.h"
#include "accounts/StandardExtraSetup.h"
#include "ports/FormVerdict.h"

namespace purrlodge {

class Session;

// The Setup commands that edit the cattery's own records: Cattery Details,
// Set Rates, Euro Exchange Rate, Set Standard Extra and Set Account Number.
// Each opens its dialog on what is saved and hands the dialog the rule behind
// its OK; a failed save keeps the dialog open with the entries as typed.

// Establishment Details (DIALOG 13), asked by Setup | Cattery Details and by
// start-up for a data folder without the cattery's details.
class EstablishmentDetailsQuestion {
public:
    virtual ~EstablishmentDetailsQuestion() = default;

    // The dialog filled from `initial`, showing the data folder being set up.
    // It calls `onOk` at each OK and closes when it answers Accept or
    // EndProgram. The last verdict, or nothing when the dialog was cancelled.
    virtual std::optional<FormVerdict>
    fillEstablishmentDetails(const EstablishmentForm& initial, const std::string& dataFolder,
                             const OkRule<EstablishmentForm>& onOk) = 0;
};

class CatterySetupQuestions : public EstablishmentDetailsQuestion {
public:
    // Each dialog filled from `initial`; it calls `onOk` at each OK and stays
    // open while it answers StayOpen. The closing verdict, or nothing on Cancel.

    // Setup Daily Board Rates (DIALOG 14).
    virtual std::optional<FormVerdict> fillRates(const RatesForm& initial,
                                                 const OkRule<RatesForm>& onOk) = 0;
    // Pound/Euro Exchange Rate (DIALOG 23).
    virtual std::optional<FormVerdict> fillExchangeRate(const ExchangeRateForm& initial,
                                                        const OkRule<ExchangeRateForm>& onOk) = 0;
    // Set Standard Extra (DIALOG 77).
    virtual std::optional<FormVerdict> fillStandardExtra(const StandardExtraForm& initial,
                                                         const OkRule<StandardExtraForm>& onOk) = 0;
    // Initial Receipt Number (DIALOG 15): the number edit starts with `offer`.
    virtual std::optional<FormVerdict> fillReceiptNumber(const std::string& offer,
                                                         const OkRule<std::string>& onOk) = 0;
};

// Opens Establishment Details on the session's record; an accepted form is
// saved and its manager's type size taken. The quit code when the program must
// end ("Entry Void": 0), else nothing.
std::optional<int> openEstablishmentDetails(Session& session,
                                            EstablishmentDetailsQuestion& questions);

// Setup | Cattery Details (11843). The quit code when the program must end.
std::optional<int> editCatteryDetails(Session& session, CatterySetupQuestions& questions);

// Setup | Set Rates (942): the rates are read from disc afresh first.
void setRates(Session& session, CatterySetupQuestions& questions);

// Setup | Euro Exchange Rate (11846), offered only while the rates are in
// Sterling (euroExchangeRateEnabled).
void setEuroExchangeRate(Session& session, CatterySetupQuestions& questions);

// Setup | Set Standard Extra (11880).
void setStandardExtra(Session& session, CatterySetupQuestions& questions);

// Setup | Set Account Number (943): the receipt counter in the index header.
void setAccountNumber(Session& session, CatterySetupQuestions& questions);

} // namespace purrlodge
