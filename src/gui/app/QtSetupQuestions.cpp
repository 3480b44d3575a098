#include "gui/app/QtSetupQuestions.h"

#include "gui/FrontWindow.h"
#include "gui/accounts/TDlg13.h"
#include "gui/accounts/TDlg14.h"
#include "gui/accounts/TDlg15.h"
#include "gui/accounts/TDlg23.h"
#include "gui/accounts/TDlg77.h"
#include "gui/app/TDlg1.h"
#include "gui/app/TDlg11.h"
#include "gui/app/TDlg30.h"
#include "gui/app/TDlg32.h"
#include "gui/print/TDlg21.h"
#include "gui/print/TDlg61.h"

namespace purrlodge {

namespace {

// Runs a form dialog to its end: the verdict of the OK that closed it.
template <class Dialog> std::optional<FormVerdict> run(Dialog& dialog)
{
    dialog.exec();
    return dialog.verdict();
}

} // namespace

QWidget* QtSetupQuestions::parent() const
{
    return frontWindow(mainWindow_);
}

std::optional<std::string> QtSetupQuestions::askDirectorySetup(const std::string& suggestion)
{
    TDlg1 dialog(suggestion, parent());
    if (dialog.exec() != QDialog::Accepted)
        return std::nullopt;
    return dialog.folder();
}

bool QtSetupQuestions::askDirectoryCheck()
{
    TDlg11 dialog(parent());
    return dialog.exec() == QDialog::Accepted;
}

bool QtSetupQuestions::askNewDirectory(const std::string& folder)
{
    TDlg32 dialog(folder, parent());
    return dialog.exec() == QDialog::Accepted;
}

std::optional<FormVerdict> QtSetupQuestions::fillChangeDataSource(const std::string& currentFolder,
                                                                  const OkRule<std::string>& onOk)
{
    TDlg30 dialog(currentFolder, onOk, parent());
    return run(dialog);
}

std::optional<FormVerdict>
QtSetupQuestions::fillEstablishmentDetails(const EstablishmentForm& initial,
                                           const std::string& dataFolder,
                                           const OkRule<EstablishmentForm>& onOk)
{
    TDlg13 dialog(initial, dataFolder, onOk, parent());
    return run(dialog);
}

std::optional<FormVerdict> QtSetupQuestions::fillRates(const RatesForm& initial,
                                                       const OkRule<RatesForm>& onOk)
{
    TDlg14 dialog(initial, onOk, parent());
    return run(dialog);
}

std::optional<FormVerdict> QtSetupQuestions::fillExchangeRate(const ExchangeRateForm& initial,
                                                              const OkRule<ExchangeRateForm>& onOk)
{
    TDlg23 dialog(initial, onOk, parent());
    return run(dialog);
}

std::optional<FormVerdict>
QtSetupQuestions::fillStandardExtra(const StandardExtraForm& initial,
                                    const OkRule<StandardExtraForm>& onOk)
{
    TDlg77 dialog(initial, onOk, parent());
    return run(dialog);
}

std::optional<FormVerdict> QtSetupQuestions::fillReceiptNumber(const std::string& offer,
                                                               const OkRule<std::string>& onOk)
{
    TDlg15 dialog(offer, onOk, parent());
    return run(dialog);
}

std::optional<FormVerdict> QtSetupQuestions::fillPrintDialogOption(int mode,
                                                                   const OkRule<int>& onOk)
{
    TDlg21 dialog(mode, onOk, parent());
    return run(dialog);
}

std::optional<FormVerdict>
QtSetupQuestions::fillColourPrintingOptions(const ColourPrintingForm& initial,
                                            const OkRule<ColourPrintingForm>& onOk)
{
    TDlg61 dialog(initial, onOk, parent());
    return run(dialog);
}

} // namespace purrlodge
