#pragma once

#include <functional>
#include <string>

#include "accounts/EstablishmentForm.h"
#include "gui/FormDialog.h"

class QCheckBox;
class QLineEdit;
class QRadioButton;

namespace purrlodge {

// "Establishment Details" (DIALOG 13): the cattery's own details. A thin view
// over EstablishmentForm: OK hands the entries to the accept function, whose
// verdict decides whether the dialog closes or stays open as typed.
class TDlg13 : public FormDialog {
    Q_OBJECT

public:
    using AcceptForm = std::function<FormVerdict(const EstablishmentForm&)>;

    // dataFolder: the folder being set up, 1252 bytes.
    TDlg13(const EstablishmentForm& initial, const std::string& dataFolder, AcceptForm acceptForm,
           QWidget* parent = nullptr);

    // The entries as they stand.
    [[nodiscard]] EstablishmentForm form() const;

private:
    void fill(const EstablishmentForm& form);

    QLineEdit* nameEdit_;                // 102
    QLineEdit* managerEdit_;             // 103
    QLineEdit* addressEdit_[4];          // 104..107
    QLineEdit* telephoneEdit_;           // 114
    QLineEdit* faxEdit_;                 // 115
    QLineEdit* emailEdit_;               // 116
    QLineEdit* vaccinationEdit_;         // 120
    QLineEdit* arrivalSheetLineEdit_[3]; // 124..126
    QLineEdit* namesOnAccountsEdit_;     // 129
    QLineEdit* typeSizeEdit_;            // 134
    QLineEdit* chequesPayableToEdit_;    // 136
    QCheckBox* arrivalSheetCheckBox_;    // 130
    QCheckBox* accountSheetCheckBox_;    // 131
    QRadioButton* inRedRadioButton_;     // 139
    QRadioButton* inBlackRadioButton_;   // 140
};

} // namespace purrlodge
