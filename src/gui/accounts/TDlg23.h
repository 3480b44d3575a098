#pragma once

#include <functional>

#include "accounts/ExchangeRateSetup.h"
#include "gui/FormDialog.h"

class QCheckBox;
class QLineEdit;

namespace purrlodge {

// "Pound/Euro Exchange Rate" (DIALOG 23): what one euro is worth in pence
// and whether accounts show euros. A thin view over ExchangeRateForm: OK
// hands the entries to the accept function, whose verdict decides whether the
// dialog closes or stays open as typed.
class TDlg23 : public FormDialog {
    Q_OBJECT

public:
    using AcceptForm = std::function<FormVerdict(const ExchangeRateForm&)>;

    TDlg23(const ExchangeRateForm& initial, AcceptForm acceptForm, QWidget* parent = nullptr);

    // The entries as they stand.
    [[nodiscard]] ExchangeRateForm form() const;

private:
    QLineEdit* pencePerEuroEdit_;  // 101
    QCheckBox* showEurosCheckBox_; // 104
};

} // namespace purrlodge
