#pragma once

#include <cstddef>
#include <string>

class QFormLayout;
class QLineEdit;
class QWidget;

namespace purrlodge {

// The From and To date edits of a dialog that asks for a period.
struct PeriodEdits {
    QLineEdit* from;
    QLineEdit* to;
};

// Adds the two date rows to the form, each taking `typedLimit` characters
// and showing its date (1252 text); From starts with its text selected.
PeriodEdits addPeriodRows(QFormLayout& form, std::size_t typedLimit, const std::string& from,
                          const std::string& to, QWidget* parent);

} // namespace purrlodge
