#include "app/commands/Printing.h"

#include <functional>

#include "accounts/FeeCalculation.h"
#include "app/Session.h"
#include "print/AccountPages.h"
#include "print/AdmissionRegisterPages.h"
#include "print/ArrivalSheets.h"
#include "print/ClientDetailsPage.h"
#include "print/PrinterJobs.h"

namespace purrlodge {

void setPrintDialogOption(Session& session, PrintingQuestions& questions)
{
    questions.fillPrintDialogOption(
        storedPrintDialogMode(session.ports.profile), [&session](int mode) {
            if (mode < printDialogNever || mode > printDialogFirstPrintOnly)
                return FormVerdict::StayOpen;
            if (!session.ports.profile.write(printDialogKey, std::to_string(mode)))
                return FormVerdict::StayOpen;
            session.printDialog.modeInForce = mode;
            return FormVerdict::Accept;
        });
}

void setPrintingOptions(Session& session, PrintingQuestions& questions)
{
    questions.fillColourPrintingOptions(
        colourPrintingFormOf(session.establishment, session.colourBlock, session.ports.profile),
        [&session](const ColourPrintingForm& form) {
            return acceptColourPrintingForm(form, session.folder, session.ports.profile,
                                            session.establishment, session.colourBlock);
        });
}

void setupPrinter(Session& session)
{
    session.ports.printer.setUp();
}

void runPendingPrintout(Session& session)
{
    session.printBuffer.count = -1;
    if (!session.printDialog.printedWithDialog)
        return;
    session.printBuffer.clear();
    PrinterJobs jobs(session.ports.printer);
    jobs.run("empty", true, session.printBuffer);
    afterPrint(session.printDialog);
    tellWherePrintoutsWent(session.ports.printer, session.ports.ui);
}

void printClientDetails(Session& session, const ClientDetailsListing& listing)
{
    fillClientDetailsPage(session.printBuffer, listing);
    PrinterJobs jobs(session.ports.printer);
    runPrintJob(jobs, "Cat Details", session.printBuffer, session.printDialog);
    tellWherePrintoutsWent(session.ports.printer, session.ports.ui);
}

namespace {

// The account pages' values for the session's account, client and cattery.
AccountPageValues accountPageValues(Session& session, const AccountPrintout& printout)
{
    const ColourPrintingForm colours =
        colourPrintingFormOf(session.establishment, session.colourBlock, session.ports.profile);
    AccountPageValues values{session.establishment, session.client, session.account,
                             session.exchangeRate, session.ports.clock};
    values.perDay = chargesPerDay(session.rates);
    values.currencySign = session.account.currencySign;
    values.inSterling = session.rates.inSterling();
    values.standardExtraName = printout.standardExtraName;
    values.standardExtraAmount = printout.standardExtraAmount;
    values.accountNote = printout.accountNote;
    values.accountInColour = colours.inColour[static_cast<std::size_t>(ColourItem::ClientsAccount)];
    values.copyInColour = colours.inColour[static_cast<std::size_t>(ColourItem::AccountCopy)];
    values.nameColourIndex = colours.nameColour;
    values.namesLineOn = printout.insertNamesLine;
    return values;
}

} // namespace

bool printAccountAndCopy(Session& session, const AccountPrintout& printout)
{
    const AccountPageValues values = accountPageValues(session, printout);
    PrinterJobs jobs(session.ports.printer);
    const AccountPairOutcome outcome =
        printAccountPair(values, session.printBuffer, session.draw, session.printDialog, jobs);
    tellWherePrintoutsWent(session.ports.printer, session.ports.ui);
    return outcome == AccountPairOutcome::Printed;
}

namespace {

// A filed account printed again takes the account note and the standard
// extra as they are now set.
AccountPageValues filedAccountValues(Session& session)
{
    const bool namesLineOn =
        colourPrintingFormOf(session.establishment, session.colourBlock, session.ports.profile)
            .namesOnAccount;
    const AccountPrintout printout{session.rates.accountNote.str(),
                                   session.rates.standardExtraName.str(),
                                   session.rates.standardExtraCharge.get(), namesLineOn};
    return accountPageValues(session, printout);
}

bool runFiledAccountJob(Session& session, const char* title)
{
    PrinterJobs jobs(session.ports.printer);
    const bool printed = runPrintJob(jobs, title, session.printBuffer, session.printDialog);
    tellWherePrintoutsWent(session.ports.printer, session.ports.ui);
    return printed;
}

} // namespace

bool reprintPastAccount(Session& session)
{
    fillClientAccount(session.printBuffer, filedAccountValues(session), session.draw);
    return runFiledAccountJob(session, "Past Account");
}

bool reprintAccountCopy(Session& session)
{
    fillAccountCopy(session.printBuffer, filedAccountValues(session));
    return runFiledAccountJob(session, "Account Copy");
}

bool printArrivalSheets(Session& session, const std::array<bool, arrivalSheetCount>& sheets)
{
    const ColourPrintingForm colours =
        colourPrintingFormOf(session.establishment, session.colourBlock, session.ports.profile);
    ArrivalSheetValues values{session.establishment, session.client, session.stay,
                              session.ports.clock};
    values.perDay = chargesPerDay(session.rates);
    values.standardExtraName = session.rates.standardExtraName.str();
    values.nameColourIndex = colours.nameColour;
    const auto inColour = [&colours](ColourItem item) {
        return colours.inColour[static_cast<std::size_t>(item)];
    };

    // Each sheet in its order, with its colour choice, title and page routine.
    struct Sheet {
        ColourItem colour;
        const char* title;
        std::function<void()> fill;
    };
    PrintBuffer& buffer = session.printBuffer;
    const Sheet sheetsInOrder[arrivalSheetCount] = {
        {ColourItem::ArrivalSheet1, "Arrival Sheet-1",
         [&] { fillArrivalSheet1(buffer, values, session.draw); }},
        {ColourItem::ArrivalSheet2, "Arrival Sheet-2",
         [&] { fillArrivalSheet2(buffer, values, session.draw); }},
        {ColourItem::ReturnSheet, "Return Shee (3)",
         [&] { fillReturnSheet(buffer, values, session.shell.switches.testPrintout); }},
    };

    PrinterJobs printer(session.ports.printer);
    CommandJobs jobs(printer, session.printDialog);
    bool printed = true;
    for (std::size_t sheet = 0; printed && sheet < sheets.size(); ++sheet) {
        if (!sheets[sheet])
            continue;
        values.inColour = inColour(sheetsInOrder[sheet].colour);
        sheetsInOrder[sheet].fill();
        printed = jobs.run(sheetsInOrder[sheet].title, buffer);
    }
    tellWherePrintoutsWent(session.ports.printer, session.ports.ui);
    return printed;
}

bool printAdmissionRegisterPages(Session& session, const AdmissionRegisterPages& pages)
{
    PrinterJobs printer(session.ports.printer);
    CommandJobs jobs(printer, session.printDialog);
    bool printed = true;
    for (int page = 0; printed && page < pages.pageCount(); ++page) {
        pages.fillPage(session.printBuffer, page);
        printed = jobs.run("Admission Register", session.printBuffer);
    }
    tellWherePrintoutsWent(session.ports.printer, session.ports.ui);
    return printed;
}

} // namespace purrlodge
