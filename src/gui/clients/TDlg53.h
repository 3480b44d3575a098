#pragma once

#include <optional>
#include <string>
#include <vector>

#include <QDialog>

#include "app/commands/ClientRemoval.h"

namespace purrlodge {

class TabbedListBox;

// "Past Clients" (DIALOG 53): the clients transferred out of the client list,
// one line each, with "Delete Client", "Restore Client" and "Show Details"
// (also a double click) for the line selected, Close and Help.
class TDlg53 : public QDialog {
    Q_OBJECT

public:
    // caption and lines: 1252 bytes.
    TDlg53(const std::string& caption, const std::vector<std::string>& lines,
           QWidget* parent = nullptr);

    // The button pressed with the line selected (-1 for none); nothing when
    // the list was closed.
    [[nodiscard]] std::optional<PastClientChoice> choice() const { return choice_; }

private:
    void choose(PastClientAction action);
    void showHelp();

    TabbedListBox* list_; // 101
    std::optional<PastClientChoice> choice_;
};

} // namespace purrlodge
