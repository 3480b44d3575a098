#pragma once

#include <QPointer>
#include <QWidget>

#include "app/StartupSequence.h"
#include "app/commands/CatterySetup.h"
#include "app/commands/ChangeDataSet.h"
#include "app/commands/Printing.h"

namespace purrlodge {

// The set-up questions answered with their dialogs: start-up's, Change Data
// Set's and the cattery set-up commands'. Each dialog is modal over the window
// in front.
class QtSetupQuestions : public StartupQuestions,
                         public ChangeDataSetQuestions,
                         public CatterySetupQuestions,
                         public PrintingQuestions {
public:
    // mainWindow: the owner of the dialogs when no other dialog is open; none
    // during start-up.
    explicit QtSetupQuestions(QWidget* mainWindow = nullptr) : mainWindow_(mainWindow) {}

    std::optional<std::string> askDirectorySetup(const std::string& suggestion) override;
    bool askDirectoryCheck() override;
    bool askNewDirectory(const std::string& folder) override;
    std::optional<FormVerdict> fillChangeDataSource(const std::string& currentFolder,
                                                    const OkRule<std::string>& onOk) override;

    std::optional<FormVerdict>
    fillEstablishmentDetails(const EstablishmentForm& initial, const std::string& dataFolder,
                             const OkRule<EstablishmentForm>& onOk) override;
    std::optional<FormVerdict> fillRates(const RatesForm& initial,
                                         const OkRule<RatesForm>& onOk) override;
    std::optional<FormVerdict> fillExchangeRate(const ExchangeRateForm& initial,
                                                const OkRule<ExchangeRateForm>& onOk) override;
    std::optional<FormVerdict> fillStandardExtra(const StandardExtraForm& initial,
                                                 const OkRule<StandardExtraForm>& onOk) override;
    std::optional<FormVerdict> fillReceiptNumber(const std::string& offer,
                                                 const OkRule<std::string>& onOk) override;

    std::optional<FormVerdict> fillPrintDialogOption(int mode, const OkRule<int>& onOk) override;
    std::optional<FormVerdict>
    fillColourPrintingOptions(const ColourPrintingForm& initial,
                              const OkRule<ColourPrintingForm>& onOk) override;

private:
    [[nodiscard]] QWidget* parent() const;

    QPointer<QWidget> mainWindow_;
};

} // namespace purrlodge
