#pragma once

#include "accounts/AccountRecord.h"
#include "accounts/EstablishmentRecord.h"
#include "accounts/ExchangeRateRecord.h"
#include "store/ClientRecord.h"

namespace purrlodge::testing {

// A cattery with every detail filled, Mrs Ann Smith with five cats of which
// the sixth slot is left out, and her account No.1042 for five days at 25.00
// (125.00 due), with the euro rate on at 62.5 pence.
struct SampleAccount {
    SampleAccount()
    {
        establishment.name.set("Whiskers Lodge");
        establishment.manager.set("Jo Bloggs");
        const char* lines[] = {"1 Mill Lane", "Upton", "Kent", "CT1 2AB"};
        for (int line = 0; line < 4; ++line)
            establishment.address[line].set(lines[line]);
        establishment.telephone.set("01227 555");
        establishment.fax.set("01227 556");
        establishment.email.set("jo@example.com");
        establishment.namesOnAccounts.set("Jo & Sam");
        establishment.chequesPayableTo.set("Whiskers Lodge Ltd");
        establishment.chequesColour.set("**RED**");
        establishment.displayFlags.set("CA");

        client.style.set("Mrs");
        client.firstName.set("Ann");
        client.surname.set("Smith");
        client.address[0].set("2 High St");
        client.address[2].set("Canterbury");
        client.telephone.set("01227 777");
        const char* cats[] = {"Tibbles", "Felix", "Smudge", "Tom", "Kitty"};
        for (int cat = 0; cat < 5; ++cat)
            client.catName[cat].set(cats[cat]);
        account.catNotBoarded[5].set(1);

        account.receiptNumber.set(1042);
        account.arrivalDate.set("01/03/05");
        account.departureDate.set("05/03/05");
        account.daysCharged.set(5);
        account.rateUsed.set(25.0f);
        account.grossBoard.set(125.0f);
        account.netBoard.set(125.0f);
        account.finalBalance.set(125.0f);
        account.currencySign = 0xA3;
        exchange.pencePerEuro.set(62.5f);
        exchange.showEuros.set(1);
    }

    EstablishmentRecord establishment{};
    ClientRecord client{};
    AccountRecord account{};
    ExchangeRateRecord exchange{};
};

} // namespace purrlodge::testing
