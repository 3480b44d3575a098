#pragma once

#include <array>
#include <optional>

#include <QDialog>

#include "clients/ClientFinder.h"

class QLineEdit;
class QRadioButton;

namespace purrlodge {

// "Matching Clients" (DIALOG 2): the finder's matches, one row each, a radio
// button beside the row's text; rows after the last are hidden. The first
// match is checked; with no match the one row says so and cannot be chosen.
class TDlg2 : public QDialog {
    Q_OBJECT

public:
    explicit TDlg2(const FinderResult& result, QWidget* parent = nullptr);

    // The 0-based match whose row is checked, if any.
    [[nodiscard]] std::optional<int> chosenMatch() const;

protected:
    bool eventFilter(QObject* watched, QEvent* event) override;

private:
    std::array<QRadioButton*, finderMatchLimit> radioButtons_{}; // 113..124
    std::array<QLineEdit*, finderMatchLimit> rowEdits_{};        // 101..112
    int matchCount_ = 0;
};

} // namespace purrlodge
