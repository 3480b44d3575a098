#pragma once

#include <QDialog>

#include "clients/GlobalSearch.h"

class QCheckBox;
class QLineEdit;
class QRadioButton;

namespace purrlodge {

// "Global Search" (DIALOG 37): the text to look for, the case mode and the
// field groups to look in. "Search" accepts, Cancel rejects, Help opens
// DIALOG 39.
class TDlg37 : public QDialog {
    Q_OBJECT

public:
    explicit TDlg37(QWidget* parent = nullptr);

    // The search as set up.
    [[nodiscard]] GlobalSearchRequest request() const;

private:
    void setGroups(const GlobalSearchGroups& groups);
    void showHelp();

    QLineEdit* textEdit_;                      // 104
    QRadioButton* caseSpecificRadioButton_;    // 102
    QRadioButton* caseIndependentRadioButton_; // 103
    QCheckBox* surnameCheckBox_;               // 105
    QCheckBox* firstNameCheckBox_;             // 106
    QCheckBox* styleCheckBox_;                 // 107
    QCheckBox* addressCheckBox_;               // 108
    QCheckBox* telMobileCheckBox_;             // 109
    QCheckBox* vetCheckBox_;                   // 110
    QCheckBox* catNameCheckBox_;               // 111
    QCheckBox* catBreedCheckBox_;              // 112
    QCheckBox* catColourCheckBox_;             // 113
    QCheckBox* notesAutoMemoCheckBox_;         // 114
    QCheckBox* favouriteFoodCheckBox_;         // 115
    QCheckBox* forbiddenFoodCheckBox_;         // 116
    QCheckBox* emailCheckBox_;                 // 121
};

} // namespace purrlodge
