#pragma once

#include <optional>
#include <string>

#include <QDialog>

#include "clients/LeavingCat.h"

class QLineEdit;
class QRadioButton;

namespace purrlodge {

// "Change to Cats noted." (DIALOG 50): a cat has been taken off the client
// form; the person says what happened to it. OK accepts, Cancel rejects.
class TDlg50 : public QDialog {
    Q_OBJECT

public:
    // catName: 1252 bytes, shown in the caption line.
    explicit TDlg50(const std::string& catName, QWidget* parent = nullptr);

    // The reason chosen (NotGiven when none is) and the notes as typed.
    [[nodiscard]] LeavingCatAnswer answer() const;

private:
    void showHelp();

    QRadioButton* lostRadioButton_;
    QRadioButton* deathRadioButton_;
    QRadioButton* newHomeRadioButton_;
    QRadioButton* otherRadioButton_;
    QLineEdit* notesEdit_;
};

} // namespace purrlodge
