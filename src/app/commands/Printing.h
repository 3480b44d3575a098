#pragma once

#include <optional>
#include <string>

#include "clients/ArrivalForm.h"
#include "clients/ClientDetails.h"
#include "ports/FormVerdict.h"
#include "print/PrintOptions.h"

namespace purrlodge {

class Session;

// The print settings' dialogs.
class PrintingQuestions {
public:
    virtual ~PrintingQuestions() = default;

    // Each dialog filled from what is stored; it calls `onOk` at each OK and
    // stays open while it answers StayOpen. The closing verdict, or nothing on
    // Cancel.

    // Print Dialog Box Option (DIALOG 21): the mode 0, 1 or 2.
    virtual std::optional<FormVerdict> fillPrintDialogOption(int mode, const OkRule<int>& onOk) = 0;
    // Colour Printing Options (DIALOG 61).
    virtual std::optional<FormVerdict>
    fillColourPrintingOptions(const ColourPrintingForm& initial,
                              const OkRule<ColourPrintingForm>& onOk) = 0;
};

// Setup | Print Dialog on/off: the mode chosen is stored and in force at once.
void setPrintDialogOption(Session& session, PrintingQuestions& questions);

// Setup | Set Printing Options: which printouts are in colour, the colour of
// the cattery's name, and the names line on the account.
void setPrintingOptions(Session& session, PrintingQuestions& questions);

// Setup | Setup Prnter: the system's printer and page set-up.
void setupPrinter(Session& session);

// The tool bar's print button: the buffer is marked empty (-1) and, once a job
// has run with the print dialog, a blank job "empty" runs with the dialog.
void runPendingPrintout(Session& session);

// Print of the client's full details: the listing as one page, "Cat Details".
void printClientDetails(Session& session, const ClientDetailsListing& listing);

// What the account pages print beside the records: the account note as the
// preparation left it, and the standard extra as the fee worked it out.
struct AccountPrintout {
    std::string accountNote;
    std::string standardExtraName;
    float standardExtraAmount = 0.0f;
    // The names to appear on accounts, printed under the cattery's name.
    bool insertNamesLine = false;
};

// Prints the session's account in preparation for its current client and the
// account's copy, each unless the account omits it, with the print dialog at
// most once; tells where they went without a printer. Returns false when a
// page that was to print did not (cancelled or failed).
bool printAccountAndCopy(Session& session, const AccountPrintout& printout);

// Prints the session's account in preparation again as "Past Account": the
// client's account page alone, with the account note and the standard extra
// as they are now set. Whether it printed.
bool reprintPastAccount(Session& session);

// Prints the cattery's copy of the session's account in preparation again,
// as "Account Copy", with the same values as the reprint. Whether it printed.
bool reprintAccountCopy(Session& session);

// Prints the sheets chosen for the session's client and stay, in their order,
// with the print dialog at most once; a sheet that does not print stops the
// ones after it. Whether every sheet chosen printed.
bool printArrivalSheets(Session& session, const std::array<bool, arrivalSheetCount>& sheets);

class AdmissionRegisterPages;

// Prints every page of the register, each as its job "Admission Register",
// with the print dialog at most once; a page that does not print stops the
// rest. Whether every page printed.
bool printAdmissionRegisterPages(Session& session, const AdmissionRegisterPages& pages);

} // namespace purrlodge
