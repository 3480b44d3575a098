#pragma once

#include <functional>
#include <string>

#include <QDialog>

#include "clients/GlobalSearch.h"

class QPushButton;

namespace purrlodge {

class TabbedListBox;

// "Matching Entries (Global Search)" (DIALOG 38): one line per field found,
// in columns under "Surname", "First name" and "Found in". "Show Details"
// (also a double click) hands the selected line over; it is hidden when
// nothing was found. OK and Cancel close the list.
class TDlg38 : public QDialog {
    Q_OBJECT

public:
    // line: 1252 bytes, as the search made it. The details open in front of
    // this dialog.
    using ShowDetails = std::function<void(const std::string& line)>;

    TDlg38(const GlobalSearchResult& result, ShowDetails showDetails, QWidget* parent = nullptr);

private:
    void showSelectedDetails();

    TabbedListBox* list_;            // 101
    QPushButton* showDetailsButton_; // 106
    ShowDetails showDetails_;
};

} // namespace purrlodge
