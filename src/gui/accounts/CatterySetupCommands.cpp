#include "gui/accounts/CatterySetupCommands.h"

#include "accounts/ExchangeRateSetup.h"
#include "accounts/RatesSetup.h"
#include "accounts/ReceiptNumberSetup.h"
#include "accounts/StandardExtraSetup.h"
#include "app/CommandIds.h"
#include "app/Session.h"
#include "gui/accounts/TDlg14.h"
#include "gui/accounts/TDlg15.h"
#include "gui/accounts/TDlg23.h"
#include "gui/accounts/TDlg77.h"
#include "gui/app/TMyWindow.h"

namespace purrlodge {

namespace {

void setRates(QWidget* parent, Session& session)
{
    // The rates are read from disc afresh, so the dialog starts from what is saved.
    TDlg14 dialog(
        openRatesForm(session),
        [&session](const RatesForm& form) { return acceptRatesForm(session, form); }, parent);
    dialog.exec();
}

void setEuroExchangeRate(QWidget* parent, Session& session)
{
    TDlg23 dialog(
        exchangeRateFormFrom(session.exchangeRate),
        [&session](const ExchangeRateForm& form) { return acceptExchangeRateForm(session, form); },
        parent);
    dialog.exec();
}

void setStandardExtra(QWidget* parent, Session& session)
{
    TDlg77 dialog(
        standardExtraFormFrom(session.rates),
        [&session](const StandardExtraForm& form) {
            return acceptStandardExtraForm(session, form);
        },
        parent);
    dialog.exec();
}

void setAccountNumber(QWidget* parent, Session& session)
{
    TDlg15 dialog(
        receiptNumberOffer(session.index),
        [&session](const std::string& typed) { return acceptReceiptNumber(session, typed); },
        parent);
    dialog.exec();
}

} // namespace

void registerCatterySetupCommands(TMyWindow& window, Session& session)
{
    QWidget* parent = &window;
    window.setCommand(command::setRates, [parent, &session] { setRates(parent, session); });
    window.setCommand(command::euroExchangeRate,
                      [parent, &session] { setEuroExchangeRate(parent, session); });
    window.setCommand(command::setStandardExtra,
                      [parent, &session] { setStandardExtra(parent, session); });
    window.setCommand(command::setAccountNumber,
                      [parent, &session] { setAccountNumber(parent, session); });
}

} // namespace purrlodge
