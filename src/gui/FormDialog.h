#pragma once

#include <functional>
#include <optional>

#include <QDialog>

#include "accounts/EstablishmentForm.h"

namespace purrlodge {

// A data-entry dialog over a plain struct of its entries. OK asks the judge,
// which the dialog builds from its own entries and the rule behind OK, for a
// verdict: the dialog closes on any verdict but StayOpen, and otherwise stays
// open with the entries as typed (the rule has shown why).
class FormDialog : public QDialog {
    Q_OBJECT

public:
    using Judge = std::function<FormVerdict()>;

    // The verdict of the OK that closed the dialog; nothing when it was cancelled.
    [[nodiscard]] std::optional<FormVerdict> verdict() const { return verdict_; }

    void accept() override;

protected:
    FormDialog(Judge judge, QWidget* parent);

    // For a small form: its rows above OK and Cancel, the dialog fixed at the
    // size they need. Called once the rows are built, so that Tab reaches the
    // buttons last.
    void layOutRows(QLayout* rows);

private:
    Judge judge_;
    std::optional<FormVerdict> verdict_;
};

} // namespace purrlodge
