#pragma once

#include <array>
#include <functional>

#include "accounts/RatesSetup.h"
#include "gui/FormDialog.h"

class QButtonGroup;
class QLabel;
class QLineEdit;
class QRadioButton;

namespace purrlodge {

// "Setup Daily Board Rates" (DIALOG 14): the rates for one to six cats, the
// currency and the charging unit. A thin view over RatesForm: OK hands the
// entries to the accept function, whose verdict decides whether the dialog
// closes or stays open as typed.
class TDlg14 : public FormDialog {
    Q_OBJECT

public:
    using AcceptForm = std::function<FormVerdict(const RatesForm&)>;

    TDlg14(const RatesForm& initial, AcceptForm acceptForm, QWidget* parent = nullptr);

    // The entries as they stand; the previous rates and the two statics are
    // those the dialog opened with.
    [[nodiscard]] RatesForm form() const;

private:
    QWidget* newRatesBox();
    QWidget* newCurrencyBox();
    QWidget* newChargingUnitBox();
    QWidget* newUpdatePreviousBox();
    void fill(const RatesForm& form);

    RatesForm shown_;                            // what the statics were filled from
    QLabel* todayLabel_;                         // 119
    QLabel* previousSetLabel_;                   // 120
    std::array<QLineEdit*, 6> presentRateEdit_;  // 101, 103, ... 111
    std::array<QLabel*, 6> previousRateLabel_;   // 102, 104, ... 112 (shown only)
    QButtonGroup* currencyGroup_;                // 116, 117, 118, 124 as 0..3
    QRadioButton* perDayRadioButton_;            // 133
    QRadioButton* perNightRadioButton_;          // 134
    QRadioButton* updatePreviousYesRadioButton_; // 122
    QRadioButton* updatePreviousNoRadioButton_;  // 123
};

} // namespace purrlodge
