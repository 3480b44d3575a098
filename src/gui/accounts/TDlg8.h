#pragma once

#include <array>
#include <functional>
#include <memory>

#include "accounts/AccountPreparation.h"
#include "gui/CatCheckBoxes.h"
#include "gui/FormDialog.h"

class QAbstractButton;
class QCheckBox;
class QGroupBox;
class QLabel;
class QLineEdit;
class QPushButton;
class QRadioButton;

namespace purrlodge {

// "Account Preparation" (DIALOG 8): the stay, the cats boarded and the extras,
// credit and discount of the account being issued. A thin view over
// AccountPreparationForm: its buttons work the fee out through the
// preparation and show what it says; OK hands the entries to the accept
// function, whose verdict decides whether the dialog closes or stays open as
// typed.
class TDlg8 : public FormDialog {
    Q_OBJECT

public:
    using AcceptForm = std::function<FormVerdict(const AccountPreparationForm&)>;
    // Opens the client's note book in front of `dialog`.
    using ShowSpecialNotes = std::function<void(QWidget* dialog)>;

    TDlg8(const AccountPreparationForm& initial, AccountPreparation& preparation,
          AcceptForm acceptForm, ShowSpecialNotes showSpecialNotes, QWidget* parent = nullptr);

    // The entries as they stand; the client line and the cats' names are
    // those the dialog opened with, the dates as Alter Dates last set them.
    [[nodiscard]] AccountPreparationForm form() const;

private:
    QGroupBox* buildStayBox();
    QGroupBox* buildChargesBox();
    QGroupBox* buildPrintingBox();
    void setKeyboardOrder(const std::vector<QWidget*>& buttons);
    void fill(const AccountPreparationForm& form);

    void showDates();
    void showCharges(const ChargeTexts& texts);
    void showStandardExtra();
    void chooseExtra(bool charged);
    // A computation as a button asks for it: a refusal is shown, otherwise
    // the count and charge are; the texts when something was computed.
    std::optional<ChargeTexts> recomputeAndShow();
    void registerChange();
    void testDiscount();
    void alterDates();
    void showHelp();

    AccountPreparation& preparation_;
    ShowSpecialNotes showSpecialNotes_;
    AccountPreparationForm shown_; // the client line, the cats' names and the dates
    StandardExtraControls extra_;  // as the Yes and No buttons left it

    QLabel* clientLabel_ = nullptr;           // 145
    QLabel* arrivalLabel_ = nullptr;          // 101
    QLabel* departureLabel_ = nullptr;        // 102
    QPushButton* alterDatesButton_ = nullptr; // 116
    std::unique_ptr<CatCheckBoxes> catBoxes_;
    QLineEdit* receiptEdit_ = nullptr;             // 131
    QLineEdit* extrasDescriptionEdit_ = nullptr;   // 103
    QLineEdit* extrasAmountEdit_ = nullptr;        // 106
    QLineEdit* creditDescriptionEdit_ = nullptr;   // 104
    QLineEdit* creditAmountEdit_ = nullptr;        // 107
    QLineEdit* discountDescriptionEdit_ = nullptr; // 105
    QLineEdit* discountPercentageEdit_ = nullptr;  // 108
    QLabel* standardExtraHeading_ = nullptr;       // beside 150 and 147
    QRadioButton* extraYesRadioButton_ = nullptr;  // 150
    QRadioButton* extraNoRadioButton_ = nullptr;   // 147
    QLabel* extraNameLabel_ = nullptr;             // 149
    QLineEdit* extraAmountEdit_ = nullptr;         // 151
    QLabel* countLabel_ = nullptr;                 // 115
    QLabel* chargeLabel_ = nullptr;                // 117
    QPushButton* registerChangeButton_ = nullptr;  // 140
    QPushButton* testDiscountButton_ = nullptr;    // 130
    QCheckBox* namesLineCheckBox_ = nullptr;       // 148
    QCheckBox* omitTopSheetCheckBox_ = nullptr;    // 133
    QCheckBox* omitCopyCheckBox_ = nullptr;        // 134
    QLineEdit* notesEdit_ = nullptr;               // 137
    QPushButton* specialNotesButton_ = nullptr;    // 139
};

} // namespace purrlodge
