#pragma once

#include <array>
#include <functional>
#include <memory>

#include "accounts/RatesRecord.h"
#include "clients/ArrivalForm.h"
#include "gui/CatCheckBoxes.h"
#include "gui/FormDialog.h"
#include "ports/FormVerdict.h"

class QCheckBox;
class QGroupBox;
class QLabel;
class QLineEdit;
class QPushButton;
class QTextEdit;

namespace purrlodge {

// "Arrival Sheet": the stay booked for the client and what the staff must
// know of it, with the sheets to print. A thin view over ArrivalForm: the
// stay's length follows the dates as they are typed, OK hands the entries to
// the rule, whose verdict decides whether the form closes or stays open as
// typed, and "Admission Register..." calls its function with the form left
// as it is.
class TDlgArrivalSheet : public FormDialog {
    Q_OBJECT

public:
    TDlgArrivalSheet(const ArrivalForm& initial, const RatesRecord& rates, OkRule<ArrivalForm> onOk,
                     std::function<void()> printRegister, QWidget* parent = nullptr);

    // The entries as they stand; the client line, the cats' names, the
    // standard extra's name and the checks are those the form opened with.
    [[nodiscard]] ArrivalForm form() const;

private:
    QGroupBox* buildStayBox();
    QGroupBox* buildThisStayBox();
    QGroupBox* buildPrintBox();
    void fill(const ArrivalForm& form);
    void showClientChecks(const std::vector<std::string>& lines);
    void showStayLength();
    void showVaccinationColour();
    void showHelp();

    ArrivalForm shown_; // what the form shows but does not edit
    RatesRecord rates_; // how the stay's length is counted
    std::function<void()> printRegister_;

    QLabel* clientLabel_ = nullptr;
    QLineEdit* arrivalEdit_ = nullptr;
    QLineEdit* arrivalRemarkEdit_ = nullptr;
    QLineEdit* departureEdit_ = nullptr;
    QLineEdit* departureRemarkEdit_ = nullptr;
    QLabel* lengthLabel_ = nullptr;
    std::unique_ptr<CatCheckBoxes> catBoxes_;
    QCheckBox* standardExtraCheckBox_ = nullptr;
    QLineEdit* medicationEdit_ = nullptr;
    QLineEdit* feedingChangesEdit_ = nullptr;
    QLineEdit* emergencyContactEdit_ = nullptr;
    QLineEdit* itemsBroughtEdit_ = nullptr;
    QLineEdit* vaccinationEdit_ = nullptr;
    QTextEdit* clientChecksText_ = nullptr;
    std::array<QCheckBox*, arrivalSheetCount> sheetBox_{};
    QPushButton* registerButton_ = nullptr;
};

} // namespace purrlodge
