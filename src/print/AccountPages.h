#pragma once

#include <string>

#include "accounts/AccountRecord.h"
#include "accounts/EstablishmentRecord.h"
#include "accounts/ExchangeRateRecord.h"
#include "store/ClientRecord.h"

namespace purrlodge {

class Clock;
class PrintJobRunner;
class RandomDraw;
struct PrintBuffer;
struct PrintDialogState;

// Everything the two account pages print, prepared before printing. The pages
// print these values as they are; they work out no fee.
struct AccountPageValues {
    const EstablishmentRecord& establishment;
    const ClientRecord& client; // the person, the address and the cats' names
    const AccountRecord& account;
    const ExchangeRateRecord& exchangeRate; // pence per euro and whether euros are shown
    const Clock& clock;                     // the weekday of a long date

    bool perDay = true;              // "days"/"day", else "nights"/"night"
    unsigned char currencySign = 0;  // 0x80 euro, '$', 0xA3 pound, blank for other
    bool inSterling = false;         // the euro equivalent follows the balance only in pounds
    std::string standardExtraName{}; // printed when the account carries the standard extra
    float standardExtraAmount = 0.0f;
    std::string accountNote{};

    bool accountInColour = false; // "Client's Account" ticked for colour printing
    bool copyInColour = false;    // "Account Copy" ticked for colour printing
    int nameColourIndex = 0;      // the establishment name's colour scheme, 0..10 (10 random)
    bool namesLineOn = false;     // the names to appear on accounts are printed
};

// Fills the buffer with the client's account page. The establishment name is
// recoloured through the draw when the page prints in colour.
void fillClientAccount(PrintBuffer& buffer, const AccountPageValues& values, RandomDraw& draw);

// Fills the buffer with the establishment's shorter copy of the account.
void fillAccountCopy(PrintBuffer& buffer, const AccountPageValues& values);

// How printing the pair ended.
enum class AccountPairOutcome {
    Printed,           // every page not omitted printed (none, when both are omitted)
    AccountNotPrinted, // the account was cancelled or failed; no copy was tried
    CopyNotPrinted,    // the copy was cancelled or failed
};

// Prints "Client's Account" and then "Account Copy", each unless the account
// omits it. Only the first job that runs may show the print dialog, and the
// after-print rule follows each job. A copy never follows an account that did
// not print.
[[nodiscard]] AccountPairOutcome printAccountPair(const AccountPageValues& values,
                                                  PrintBuffer& buffer, RandomDraw& draw,
                                                  PrintDialogState& dialog, PrintJobRunner& runner);

} // namespace purrlodge
