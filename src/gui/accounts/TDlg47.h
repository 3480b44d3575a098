#pragma once

#include <functional>
#include <string>

#include "gui/FormDialog.h"

class QLineEdit;

namespace purrlodge {

// "New Dates for Account" (DIALOG 47): the stay's arrival and departure typed
// again. "Register Change" hands both dates as typed to the register function,
// whose verdict decides whether the dialog closes or stays open as typed.
class TDlg47 : public FormDialog {
    Q_OBJECT

public:
    // Dates in 1252 bytes.
    using RegisterDates =
        std::function<FormVerdict(const std::string& arrival, const std::string& departure)>;

    TDlg47(const std::string& arrival, const std::string& departure, RegisterDates registerDates,
           QWidget* parent = nullptr);

private:
    QLineEdit* arrivalEdit_;   // 101
    QLineEdit* departureEdit_; // 102
};

} // namespace purrlodge
