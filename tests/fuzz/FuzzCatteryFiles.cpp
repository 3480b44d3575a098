// Bytes as the cattery's own files, in this order: the establishment
// (NESTAB.DAT, 1620 bytes), the rates (NRATES.RTS, 473), the exchange rate
// (EURORATE.XCH, 8) and the colour block (NESTAB.XAT, 8500). A file the input
// does not reach is missing. Start-up reads them all; then each set-up dialog
// opens on its record and is pressed OK as it stands.

#include <cstddef>
#include <cstdint>
#include <string>

#include "accounts/CatteryFiles.h"
#include "accounts/EstablishmentDetails.h"
#include "accounts/ExchangeRateSetup.h"
#include "accounts/RatesSetup.h"
#include "accounts/StandardExtra.h"
#include "accounts/StandardExtraSetup.h"
#include "app/Session.h"
#include "app/StartupSequence.h"
#include "fuzz/FuzzSupport.h"
#include "support/FakePorts.h"
#include "support/FakeQuestions.h"

namespace {

using namespace purrlodge;

void startUp(const std::string& dataFolder)
{
    testing::FakePorts fakes;
    fakes.clock.setUtc(2024, 6, 15);
    static_cast<void>(fakes.profile.write("CurrentDir", dataFolder));
    Session session(fakes.ports(), dataFolder);
    testing::ScriptedSetupQuestions questions;
    static_cast<void>(runStartupSequence(session, questions, dataFolder));
}

void setUp(const DataFolder& folder, const Clock& clock, Ui& ui)
{
    EstablishmentRecord establishment;
    loadEstablishment(folder, establishment);
    static_cast<void>(managerTypeSizeOf(establishment));
    static_cast<void>(
        acceptEstablishmentForm(establishmentFormFrom(establishment), establishment, folder, ui));

    RatesRecord rates{};
    const RatesForm ratesForm = openRatesForm(rates, folder, clock);
    static_cast<void>(ratesUsable(rates));
    static_cast<void>(standardExtraPending(rates));
    static_cast<void>(openingStandardExtra(rates));
    static_cast<void>(euroExchangeRateEnabled(rates));
    static_cast<void>(acceptRatesForm(ratesForm, rates, folder, clock));
    static_cast<void>(acceptStandardExtraForm(standardExtraFormFrom(rates), rates, folder));

    ExchangeRateRecord exchangeRate;
    loadExchangeRate(folder, exchangeRate);
    static_cast<void>(
        acceptExchangeRateForm(exchangeRateFormFrom(exchangeRate), exchangeRate, folder));

    ColourBlock colours;
    loadColourBlock(folder, colours);
    static_cast<void>(saveColourBlock(folder, colours));
}

} // namespace

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size)
{
    static fuzzing::FuzzFolder temp;
    temp.reset();
    fuzzing::Pieces pieces(data, size);
    temp.put(establishmentFile, pieces.take(sizeof(EstablishmentRecord)));
    temp.put(ratesFile, pieces.take(sizeof(RatesRecord)));
    temp.put(exchangeRateFile, pieces.take(sizeof(ExchangeRateRecord)));
    temp.put(colourBlockFile, pieces.take(sizeof(ColourBlock)));

    startUp(temp.path());

    testing::FakeUi ui;
    testing::FakeClock clock;
    clock.setUtc(2024, 6, 15);
    const DataFolder folder(temp.path(), ui);
    setUp(folder, clock, ui);
    return 0;
}
