#pragma once

#include <optional>

#include <QDialog>

#include "app/commands/PastAccounts.h"

namespace purrlodge {

class TabbedListBox;

// This Client's Accounts (DIALOG 25): the client's filed accounts, one line
// each, with "Summary" (also a double click), "Reprint" and "Delete" for the
// line selected, and "Close".
class TDlg25 : public QDialog {
    Q_OBJECT

public:
    explicit TDlg25(const ClientAccountsList& list, QWidget* parent = nullptr);

    // The button pressed with the line selected (-1 for none); nothing when
    // the list was closed.
    [[nodiscard]] std::optional<PastAccountChoice> choice() const { return choice_; }

private:
    void choose(PastAccountAction action);

    TabbedListBox* list_;
    std::optional<PastAccountChoice> choice_;
};

} // namespace purrlodge
