#pragma once

#include <functional>

#include "accounts/StandardExtraSetup.h"
#include "gui/FormDialog.h"

class QLineEdit;

namespace purrlodge {

// "Set Standard Extra" (DIALOG 77): the extra charge that every account may
// carry, its name and amount. A thin view over StandardExtraForm: OK hands the
// entries to the accept function, whose verdict decides whether the dialog
// closes or stays open as typed.
class TDlg77 : public FormDialog {
    Q_OBJECT

public:
    using AcceptForm = std::function<FormVerdict(const StandardExtraForm&)>;

    TDlg77(const StandardExtraForm& initial, AcceptForm acceptForm, QWidget* parent = nullptr);

    // The entries as they stand.
    [[nodiscard]] StandardExtraForm form() const;

private:
    QLineEdit* nameEdit_;   // 101
    QLineEdit* amountEdit_; // 102
};

} // namespace purrlodge
