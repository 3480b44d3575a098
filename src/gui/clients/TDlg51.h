#pragma once

#include <string>

#include <QDialog>

#include "clients/CatNameChange.h"

class QRadioButton;

namespace purrlodge {

// "Cat Name Change" (DIALOG 51): a cat's name was typed over; the person says
// whether it is the same cat renamed or a new cat in its place, and closes
// with Done. Help opens DIALOG 55.
class TDlg51 : public QDialog {
    Q_OBJECT

public:
    // Names in 1252 bytes.
    TDlg51(const std::string& oldName, const std::string& newName, QWidget* parent = nullptr);

    // The option selected; a rename unless the person picks the new cat.
    [[nodiscard]] CatNameChoice choice() const;

private:
    void showHelp();

    QRadioButton* nameChangedRadioButton_;
    QRadioButton* newCatRadioButton_;
};

} // namespace purrlodge
