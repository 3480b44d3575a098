#pragma once

#include <array>

#include "gui/FormDialog.h"
#include "ports/FormVerdict.h"
#include "print/PrintOptions.h"

class QButtonGroup;
class QCheckBox;

namespace purrlodge {

// "Colour Printing Options" (DIALOG 61): which printouts are printed in colour
// (check boxes 101 to 106, the Client's Account being 105 and the Account Copy
// 106), the colour of the cattery's name on them (eleven choices, the last a
// different colour each time), and whether the account carries the names line.
class TDlg61 : public FormDialog {
    Q_OBJECT

public:
    TDlg61(const ColourPrintingForm& initial, const OkRule<ColourPrintingForm>& onOk,
           QWidget* parent = nullptr);

    [[nodiscard]] ColourPrintingForm form() const;

private:
    void showHelp();

    std::array<QCheckBox*, colourItemCount> items_{};
    QButtonGroup* nameColours_;
    QCheckBox* namesOnAccount_;
};

} // namespace purrlodge
