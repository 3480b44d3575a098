#pragma once

#include <QDialog>

#include "housekeeping/AddressFile.h"

class QRadioButton;

namespace purrlodge {

// "Address Format" (DIALOG 81): two sample labels, a plain one and one headed
// by the cats' names with the owner "c\o", each with its "This style" button.
class TDlg81 : public QDialog {
    Q_OBJECT

public:
    explicit TDlg81(LabelStyle current, QWidget* parent = nullptr);

    // The style of the button that is set.
    [[nodiscard]] LabelStyle style() const;

private:
    QRadioButton* plainButton_; // 102
    QRadioButton* catsButton_;  // 105
};

} // namespace purrlodge
