#pragma once

#include <functional>
#include <optional>

#include <QDialog>

#include "accounts/ExchangeRateSetup.h"

class QCheckBox;
class QLineEdit;

namespace purrlodge {

// "Pound/Euro Exchange Rate" (DIALOG 23): what one euro is worth in pence
// and whether accounts show euros. A thin view over ExchangeRateForm: OK
// hands the entries to the accept function, whose verdict decides whether the
// dialog closes or stays open as typed.
class TDlg23 : public QDialog {
    Q_OBJECT

public:
    using AcceptForm = std::function<FormVerdict(const ExchangeRateForm&)>;

    TDlg23(const ExchangeRateForm& initial, AcceptForm acceptForm, QWidget* parent = nullptr);

    // The entries as they stand.
    [[nodiscard]] ExchangeRateForm form() const;

    // The verdict of the OK that closed the dialog; nothing when it was cancelled.
    [[nodiscard]] std::optional<FormVerdict> verdict() const { return verdict_; }

    void accept() override;

private:
    QLineEdit* pencePerEuroEdit_;  // 101
    QCheckBox* showEurosCheckBox_; // 104

    AcceptForm acceptForm_;
    std::optional<FormVerdict> verdict_;
};

} // namespace purrlodge
